// The rename screen with a photo shoot of 10,000 files: what the main thread pays while
// the files are added, while the user types a rule (each keystroke's run on the worker
// names every row and checks every name against the others and the folder, where one name
// in a hundred is taken), while one row is named by hand into a conflict, while the list
// scrolls, and how long the rename of all the free rows takes from the button to the
// completion view.
//
// usage: QT_QPA_PLATFORM=offscreen rename_screen [FILES]   (default 10000)

#include "BRRenameTableView.h"
#include "BRRenameViewController.h"
#include "RenameList.h"
#include "RenameNotificationCenter.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace {

double millisecondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// The longest stretch in which the main thread did not get back to its event loop.
class FrameWatch
{
public:
    FrameWatch()
    {
        QObject::connect(&m_ticker, &QTimer::timeout, [this] {
            const qint64 now = m_clock.nsecsElapsed();
            m_longest = std::max(m_longest, now - m_last);
            m_last = now;
        });
    }
    void start()
    {
        m_clock.start();
        m_last = 0;
        m_longest = 0;
        m_ticker.start(1);
    }
    double stop()
    {
        m_ticker.stop();
        return static_cast<double>(m_longest) / 1e6;
    }

private:
    QTimer m_ticker;
    QElapsedTimer m_clock;
    qint64 m_last = 0;
    qint64 m_longest = 0;
};

void runEventsFor(int ms)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int files = argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 10000;

    QTemporaryDir dir;
    QList<QUrl> urls;
    urls.reserve(files);
    for (int i = 0; i < files; ++i) {
        const QString path =
            dir.filePath(QStringLiteral("IMG_%1.jpg").arg(i + 1, 5, 10, QLatin1Char('0')));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return 1;
        urls.append(QUrl::fromLocalFile(path));
    }
    std::reverse(urls.begin(), urls.end()); // a drop comes in any order; the list sorts it
    // Names the rule will give that a file outside the list holds already.
    int taken = 0;
    for (int i = 1; i <= files; i += 100, ++taken) {
        QFile file(dir.filePath(QStringLiteral("Summer in Lisbon %1.jpg").arg(i)));
        if (!file.open(QIODevice::WriteOnly))
            return 1;
    }

    ScriptedAlertPresenter alerts;
    ScriptedOpenPanel openPanel;
    BRRenameViewController screen({alerts, openPanel});
    screen.setFadeDuration(0);
    screen.resize(1000, 760);
    screen.show();
    runEventsFor(200);

    FrameWatch frames;
    const double addMs =
        millisecondsOf([&] { Q_EMIT screen.notificationCenter()->dragAndDropComplete(urls); });
    runEventsFor(300);
    std::printf("rows: %lld\n", static_cast<long long>(screen.renameList()->rowCount()));
    std::printf("add %d files (drop to list, bookmarks, sort): %.1f ms\n", files, addMs);

    // Typing a rule at a brisk 12 keys a second; every keystroke starts a run.
    auto *field = screen.findChild<QLineEdit *>(QStringLiteral("newNameTextField"));
    const QString typed = QStringLiteral("Summer in Lisbon ");
    QList<double> runMs;
    frames.start();
    QElapsedTimer runClock;
    QObject::connect(screen.renameList(), &RenameList::ruleRunEnded,
                     [&] { runMs.append(static_cast<double>(runClock.nsecsElapsed()) / 1e6); });
    for (const QChar character : typed) {
        runClock.start();
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(field, &press);
        runEventsFor(83);
    }
    runEventsFor(300);
    const double typingFrame = frames.stop();
    std::sort(runMs.begin(), runMs.end());
    std::printf("typing %lld keys: longest main-thread frame %.1f ms; rule run from key to names "
                "on screen: median %.1f ms, longest %.1f ms\n",
                static_cast<long long>(typed.size()), typingFrame,
                runMs.isEmpty() ? 0.0 : runMs.at(runMs.size() / 2),
                runMs.isEmpty() ? 0.0 : runMs.last());
    RenameList &list = *screen.renameList();
    std::printf(
        "last row named: %s; %d names taken on disk; the button reads \"%s\"\n",
        qPrintable(list.records()
                       .value(list.keys().last())
                       .destinationURL.value_or(QStringLiteral("(none)"))),
        taken, qPrintable(screen.findChild<QPushButton *>(QStringLiteral("renameButton"))->text()));

    // One row named by hand after its neighbour: a check of every row on the worker, and
    // both rows marked.
    {
        double checkMs = 0;
        bool checked = false;
        QElapsedTimer checkClock;
        const auto connection = QObject::connect(&list, &RenameList::ruleRunEnded, [&] {
            checkMs = static_cast<double>(checkClock.nsecsElapsed()) / 1e6;
            checked = true;
        });
        frames.start();
        checkClock.start();
        list.setHandName(1, QStringLiteral("Summer in Lisbon 1"));
        while (!checked)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        runEventsFor(100);
        QObject::disconnect(connection);
        const RenameRecord &edited = list.records().value(list.keys().at(1));
        std::printf(
            "a hand edit into a conflict: check of %d rows from edit to marks %.1f ms, "
            "longest main-thread frame %.1f ms; row marked: %s; button \"%s\"\n",
            files, checkMs, frames.stop(), isConflict(edited.check) ? "yes" : "no",
            qPrintable(screen.findChild<QPushButton *>(QStringLiteral("renameButton"))->text()));
    }

    // Scrolling through the whole list a page at a time.
    QScrollBar *bar = screen.renameTableView()->verticalScrollBar();
    frames.start();
    for (int value = 0; value <= bar->maximum(); value += bar->pageStep() / 3) {
        bar->setValue(value);
        QCoreApplication::processEvents();
        if (value > 40 * bar->pageStep())
            break;
    }
    runEventsFor(100);
    std::printf("scrolling 40 pages: longest main-thread frame %.1f ms\n", frames.stop());

    // The rename itself.
    const int promised = list.renameCount();
    const qsizetype before =
        QDir(dir.path()).entryList({QStringLiteral("Summer in Lisbon *.jpg")}, QDir::Files).size();
    QElapsedTimer renameClock;
    bool ended = false;
    QObject::connect(screen.renameList(), &RenameList::renameEnded, [&] { ended = true; });
    frames.start();
    renameClock.start();
    screen.renameAction();
    while (!ended)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    const double renameMs = static_cast<double>(renameClock.nsecsElapsed()) / 1e6;
    const double renameFrame = frames.stop();
    QCoreApplication::processEvents(); // alerts come after the report
    const qsizetype renamed =
        QDir(dir.path()).entryList({QStringLiteral("Summer in Lisbon *.jpg")}, QDir::Files).size() -
        before;
    std::printf("rename %d of %d files: %.0f ms to the report, %lld renamed on disk, %lld alerts; "
                "longest main-thread frame %.1f ms\n",
                promised, files, renameMs, static_cast<long long>(renamed),
                static_cast<long long>(alerts.shown.size()), renameFrame);
    return renamed == promised ? 0 : 1;
}
