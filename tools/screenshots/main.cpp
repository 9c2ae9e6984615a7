// Takes screenshots of Quillmere's screens as a new user meets them: the intro, the home
// folder choice, the main view on both tabs, About, the duplicate finder from choosing
// a folder to the detail of a group, and the batch renamer from the drop target to the
// end of a rename, its undo, names in conflict, and a partial failure tried again. It
// drives the real window with scripted dialogs and grabs each screen, so no display or
// window manager is needed.
//
// Usage: quillmere-screenshots [--scale FACTOR] [--dark] [--language de|fr] [OUTPUT_FOLDER]
//   --scale 2   every screen at twice the pixels, as on a screen of high density
//   --dark      Qt's Fusion style with a dark palette, as under a dark desktop theme
//   --language  the German or French translation
//   OUTPUT_FOLDER defaults to "screenshots"

#include "AppDelegate.h"
#include "BRAboutWindowController.h"
#include "BRDuplicateFilePreviewTableViewCell.h"
#include "BRDuplicateFilePreviewViewController.h"
#include "BRDuplicateFilesMainViewController.h"
#include "BRDuplicateFilesViewController.h"
#include "BRDuplicateFinderClass.h"
#include "BRDuplicateScanStartViewController.h"
#include "BRDuplicateSortViewController.h"
#include "BRDuplicateStartScanButton.h"
#include "BRDuplicateTableView.h"
#include "BRMainWindowController.h"
#include "BRRenameTableView.h"
#include "BRRenameViewController.h"
#include "CopyRemoval.h"
#include "DuplicateResults.h"
#include "FreedesktopTrash.h"
#include "QtAlertPresenter.h"
#include "RenameNotificationCenter.h"
#include "RowAnchoredPopover.h"
#include "ScanThreads.h"
#include "ScriptedAlertPresenter.h"
#include "ScriptedOpenPanel.h"
#include "ScriptedWorkspace.h"

#include "Translations.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QSemaphore>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <cstdio>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Lets timers, fades and the thumbnail threads run for a while.
void settle(int ms = 300)
{
    QElapsedTimer timer;
    timer.start();
    do {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    } while (timer.elapsed() < ms);
}

bool write(const QImage &image, const QString &folder, const QString &name)
{
    const QString path = folder + u'/' + name + u".png"_s;
    const bool saved = image.save(path);
    std::printf("%s %s\n", saved ? "wrote" : "could not write", qPrintable(path));
    return saved;
}

bool save(QWidget &widget, const QString &folder, const QString &name)
{
    settle();
    return write(widget.grab().toImage(), folder, name);
}

// Types as a user does, key by key, so the screen hears every keystroke.
void typeInto(QWidget *field, const QString &text)
{
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(field, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(field, &release);
    }
}

void pressKey(QWidget *widget, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
}

void pressReturn(QWidget *field)
{
    pressKey(field, Qt::Key_Return);
}

struct Options
{
    QByteArray scale = "1";
    bool dark = false;
    QString language = {};
    QString output = QStringLiteral("screenshots");
    QString error = {};
};

Options readOptions(int argc, char *argv[])
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "--dark") {
            options.dark = true;
        } else if (argument == "--language" && i + 1 < argc) {
            options.language = QString::fromLocal8Bit(argv[++i]);
        } else if (argument == "--scale" && i + 1 < argc) {
            options.scale = argv[++i];
            bool isNumber = false;
            const double factor = options.scale.toDouble(&isNumber);
            if (!isNumber || factor < 1 || factor > 4)
                options.error = u"the scale must be a number from 1 to 4, not "_s +
                                QString::fromLocal8Bit(options.scale);
        } else if (argument.startsWith('-')) {
            options.error = u"unknown option "_s + QString::fromLocal8Bit(argument);
        } else {
            options.output = QString::fromLocal8Bit(argument);
        }
    }
    return options;
}

// A dark desktop as Qt shows it without a theme of its own: Fusion with a dark palette.
QPalette darkPalette()
{
    QPalette palette;
    const QColor window(45, 45, 48), base(30, 30, 32), text(230, 230, 230);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::red);
    palette.setColor(QPalette::Link, QColor(90, 170, 255));
    palette.setColor(QPalette::Highlight, QColor(60, 120, 200));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Light, QColor(70, 70, 74));
    palette.setColor(QPalette::Midlight, QColor(60, 60, 64));
    palette.setColor(QPalette::Mid, QColor(40, 40, 42));
    palette.setColor(QPalette::Dark, QColor(20, 20, 22));
    palette.setColor(QPalette::Shadow, Qt::black);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(120, 120, 120));
    return palette;
}

// A screen larger than the window, so a popover beside a row has room as on a desktop.
void configureOffscreenScreen(const QTemporaryDir &scratch)
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen")
        return;
    const QString config = scratch.filePath(u"screen.json"_s);
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1440,
                  "height": 900, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(config));
}

// ---------------------------------------------------------------------------------------
// A folder as people keep them: photos in two places, an album downloaded twice, a backup
// of the recipes. Every copy that should be found is larger than 64 KiB.

class SampleTree
{
public:
    explicit SampleTree(const QString &root) : m_root(root) {}

    const QString &root() const { return m_root; }
    QString path(const QString &relative) const { return m_root + u'/' + relative; }

    void makeFolder(const QString &relative) const { QDir().mkpath(path(relative)); }

    void writeBytes(const QString &relative, const QByteArray &data) const
    {
        QDir().mkpath(QFileInfo(path(relative)).absolutePath());
        QFile file(path(relative));
        if (file.open(QIODevice::WriteOnly))
            file.write(data);
    }

    // Sound and film are stand-ins: a header and bytes that never compress.
    void writeMedia(const QString &relative, const QByteArray &header, qint64 size,
                    quint32 seed) const
    {
        QByteArray data(size, Qt::Uninitialized);
        QRandomGenerator random(seed);
        for (char &byte : data)
            byte = static_cast<char>(random.bounded(256));
        data.replace(0, header.size(), header);
        writeBytes(relative, data);
    }

    // A landscape with a little grain, as a camera leaves it.
    void writePhoto(const QString &relative, QSize size, quint32 seed, bool sepia = false) const
    {
        QRandomGenerator random(seed);
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const int hue = random.bounded(180, 240);
        QLinearGradient sky(0, 0, 0, size.height());
        sky.setColorAt(0, QColor::fromHsv(hue, 150, 235));
        sky.setColorAt(0.6, QColor::fromHsv(hue - 170 < 0 ? hue + 190 : hue - 170, 70, 255));
        painter.fillRect(image.rect(), sky);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 236, 190));
        const int sun = size.width() / 9;
        painter.drawEllipse(QPoint(random.bounded(sun, size.width() - sun), size.height() / 3),
                            sun / 2, sun / 2);
        for (int layer = 0; layer < 4; ++layer) {
            QPainterPath hill;
            const double base = size.height() * (0.5 + 0.12 * layer);
            hill.moveTo(0, size.height());
            hill.lineTo(0, base);
            const int steps = 6;
            for (int step = 1; step <= steps; ++step) {
                const double x = size.width() * step / static_cast<double>(steps);
                const double y = base - random.bounded(size.height() / 6);
                hill.quadTo(x - size.width() / (2.0 * steps), y - size.height() / 12.0, x, y);
            }
            hill.lineTo(size.width(), size.height());
            painter.setBrush(QColor::fromHsv(100 + 20 * layer, 120, 150 - 30 * layer));
            painter.drawPath(hill);
        }
        painter.end();
        for (int y = 0; y < size.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < size.width(); ++x) {
                const int grain = random.bounded(-7, 8);
                int r = qRed(line[x]) + grain, g = qGreen(line[x]) + grain,
                    b = qBlue(line[x]) + grain;
                if (sepia) {
                    const int grey = (r * 3 + g * 6 + b) / 10;
                    r = grey + 40;
                    g = grey + 20;
                    b = grey - 10;
                }
                line[x] = qRgb(qBound(0, r, 255), qBound(0, g, 255), qBound(0, b, 255));
            }
        }
        QDir().mkpath(QFileInfo(path(relative)).absolutePath());
        image.save(path(relative), relative.endsWith(u".png") ? "PNG" : "JPG", 90);
    }

    void copy(const QString &from, const QString &to) const
    {
        QDir().mkpath(QFileInfo(path(to)).absolutePath());
        QFile::copy(path(from), path(to));
    }

    void build() const
    {
        writePhoto(u"Pictures/Lake Tahoe 2019/IMG_2041.jpg"_s, {1600, 1200}, 41);
        writePhoto(u"Pictures/Lake Tahoe 2019/IMG_2057.jpg"_s, {1600, 1200}, 57);
        writePhoto(u"Pictures/Lake Tahoe 2019/IMG_2064.jpg"_s, {1600, 1200}, 64);
        writePhoto(u"Pictures/Lake Tahoe 2019/IMG_2103.jpg"_s, {1200, 1600}, 103);
        writePhoto(u"Pictures/Lake Tahoe 2019/sunset-panorama.png"_s, {1800, 600}, 7);
        writePhoto(u"Pictures/Family/grandma-1987-scan.jpg"_s, {1000, 1300}, 87, true);
        copy(u"Pictures/Lake Tahoe 2019/IMG_2041.jpg"_s, u"Backup/Phone Camera/IMG_2041.jpg"_s);
        copy(u"Pictures/Lake Tahoe 2019/IMG_2057.jpg"_s, u"Backup/Phone Camera/IMG_2057.jpg"_s);
        copy(u"Pictures/Lake Tahoe 2019/IMG_2103.jpg"_s, u"Backup/Phone Camera/IMG_2103.jpg"_s);
        copy(u"Pictures/Lake Tahoe 2019/IMG_2041.jpg"_s, u"Desktop/IMG_2041.jpg"_s);
        copy(u"Pictures/Lake Tahoe 2019/sunset-panorama.png"_s,
             u"Pictures/Wallpapers/sunset-panorama.png"_s);
        copy(u"Pictures/Family/grandma-1987-scan.jpg"_s, u"Downloads/grandma-1987-scan.jpg"_s);
        writeBytes(u"Desktop/todo.txt"_s, "- call the plumber\n- renew passport\n");

        const QString album = u"Music/Aurora Strings - Harbour/"_s;
        writeMedia(album + u"01 Morning Light.mp3"_s, "ID3", 4'180'311, 1);
        writeMedia(album + u"02 Harbour Lights.mp3"_s, "ID3", 5'022'870, 2);
        writeMedia(album + u"03 Low Tide.mp3"_s, "ID3", 3'760'104, 3);
        copy(album + u"01 Morning Light.mp3"_s, u"Downloads/01 Morning Light.mp3"_s);
        writeMedia(u"Videos/Birthday party 2021.mp4"_s,
                   QByteArray("\0\0\0\x18"
                              "ftypmp42",
                              12),
                   9'437'411, 4);
        writeMedia(u"Videos/Kayak trip.mp4"_s,
                   QByteArray("\0\0\0\x18"
                              "ftypmp42",
                              12),
                   7'340'219, 5);
        copy(u"Videos/Birthday party 2021.mp4"_s, u"Backup/Videos/Birthday party 2021.mp4"_s);

        writeMedia(u"Documents/Tax Return 2021.pdf"_s, "%PDF-1.7\n", 412'330, 6);
        copy(u"Documents/Tax Return 2021.pdf"_s, u"Downloads/Tax Return 2021.pdf"_s);
        writeBytes(u"Documents/Letters/Letter to the council.txt"_s,
                   "Dear Sir or Madam,\n\nthe street light outside number 14 has been out "
                   "since March.\n");
        QByteArray journal = "Kitchen journal\n===============\n\n";
        const char *dishes[] = {"Lemon drizzle cake - 180 C, 40 min; a little dry at 45.",
                                "Sourdough - fed the starter at 8, baked at 19. Good crumb.",
                                "Tomato soup - roast the tomatoes first, much better.",
                                "Apple crumble - half the sugar is plenty."};
        for (int day = 0; day < 1400; ++day)
            journal += QDate(2019, 1, 1).addDays(day).toString(Qt::ISODate).toLatin1() + "  " +
                       dishes[day % 4] + '\n';
        writeBytes(u"Documents/Recipes/Kitchen journal.txt"_s, journal);
        writeBytes(u"Documents/Recipes/Lemon drizzle cake.txt"_s,
                   "225 g butter, 225 g sugar, 4 eggs, 225 g flour, 2 lemons.\n");
        writeBytes(u"Documents/Recipes/Sourdough starter.txt"_s,
                   "50 g rye flour and 50 g water, every morning for a week.\n");
        for (const QString &name :
             {u"Kitchen journal.txt"_s, u"Lemon drizzle cake.txt"_s, u"Sourdough starter.txt"_s})
            copy(u"Documents/Recipes/"_s + name, u"Backup/Recipes/"_s + name);
    }

private:
    QString m_root;
};

// Marks a file immutable (chattr +i) or lifts the mark, so that a rename of it fails as on a
// locked file; root can set it on ext4, btrfs and xfs. False when it cannot be set.
bool setImmutable(const QString &path, bool immutable)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    int flags = 0;
    bool done = ::ioctl(descriptor, FS_IOC_GETFLAGS, &flags) == 0;
    if (done) {
        flags = immutable ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
        done = ::ioctl(descriptor, FS_IOC_SETFLAGS, &flags) == 0;
    }
    ::close(descriptor);
    return done;
}

// Rests the mouse on a row of the rename list, which then shows its live controls.
void hoverRenameRow(BRRenameTableView *table, int row)
{
    const QPoint onRow = table->rectForRow(row).center();
    QMouseEvent hover(QEvent::MouseMove, table->viewport()->mapFrom(table, onRow),
                      table->mapToGlobal(onRow), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table->viewport(), &hover);
}

// Holds back what the scan thread hands to the main thread: its reports come as calls
// queued on the application object.
class ReportHold : public QObject
{
public:
    ReportHold() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return watched == qApp && event->type() == QEvent::MetaCall;
    }
};

} // namespace

int main(int argc, char *argv[])
{
    const Options options = readOptions(argc, argv);
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "quillmere-screenshots: %s\n", qPrintable(options.error));
        return 2;
    }
    QTemporaryDir scratch;
    configureOffscreenScreen(scratch);
    // As a desktop scaled to 200% would: every window and image at twice the pixels.
    qputenv("QT_SCALE_FACTOR", options.scale);
    QApplication application(argc, argv);
    if (options.dark) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setPalette(darkPalette());
    }
    // Offscreen, no desktop names an icon theme and the system's icon folders are not
    // searched; the shots show the icons of a desktop session instead of blanks.
    if (QIcon::themeName().isEmpty()) {
        QStringList paths = QIcon::themeSearchPaths();
        paths += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"icons"_s,
                                           QStandardPaths::LocateDirectory);
        QIcon::setThemeSearchPaths(paths);
        QIcon::setThemeName(u"Adwaita"_s);
    }
    // Every screen in that language, as a German or French desktop shows it; English with
    // its plural forms otherwise, as the program starts.
    if (options.language.isEmpty())
        Translations::install(application, QLocale(QLocale::English));
    if (!options.language.isEmpty()) {
        if (!Translations::install(application, QLocale(options.language))) {
            std::fprintf(stderr, "quillmere-screenshots: no translation for \"%s\"\n",
                         qPrintable(options.language));
            return 2;
        }
        QLocale::setDefault(QLocale(options.language));
    }
    const QString &output = options.output;
    if (!QDir().mkpath(output)) {
        std::fprintf(stderr, "quillmere-screenshots: cannot make %s\n", qPrintable(output));
        return 2;
    }

    // A first launch, with settings and a home folder of its own.
    QSettings settings(scratch.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    ScriptedAlertPresenter alerts;
    ScriptedOpenPanel panel;
    ScriptedWorkspace workspace;
    AppDelegate appDelegate(alerts, settings);
    BRDuplicateFilesMainViewController *duplicates = nullptr;
    BRRenameViewController *renamer = nullptr;
    BRMainWindowController window({appDelegate, alerts, panel, workspace, settings,
                                   [&] {
                                       duplicates = new BRDuplicateFilesMainViewController(
                                           {alerts, panel, workspace, &appDelegate});
                                       // No waiting for fades; the status screen comes as soon as a
                                       // scan finds nothing.
                                       duplicates->setTimings({0, 0, 100});
                                       return duplicates;
                                   },
                                   [&] {
                                       renamer = new BRRenameViewController({alerts, panel});
                                       renamer->setFadeDuration(0);
                                       return renamer;
                                   }});
    window.resize(960, 640);
    if (const QScreen *screen = window.screen())
        window.move(screen->availableGeometry().center() - window.rect().center());
    window.windowDidLoad();
    window.show();

    bool ok = save(window, output, QStringLiteral("1-intro"));
    window.findChild<QPushButton *>(QStringLiteral("gotItButton"))->click();
    ok &= save(window, output, QStringLiteral("2-home-folder"));
    QDir(scratch.path()).mkdir(QStringLiteral("home"));
    panel.choices = {{QUrl::fromLocalFile(scratch.filePath(QStringLiteral("home")))}};
    window.findChild<QPushButton *>(QStringLiteral("selectHomeFolderButton"))->click();
    ok &= save(window, output, QStringLiteral("3-main-duplicates"));
    window.findChild<QToolButton *>(QStringLiteral("renameImageButton"))->click();
    ok &= save(window, output, QStringLiteral("4-main-rename"));

    {
        BRAboutWindowController about(workspace, &window);
        about.show();
        ok &= save(about, output, QStringLiteral("5-about"));
    }
    if (!duplicates || !renamer)
        return 1;

    // The duplicate finder over a folder of its own.
    window.findChild<QToolButton *>(QStringLiteral("duplicateImageButton"))->click();
    const SampleTree tree(scratch.filePath(u"Family Archive"_s));
    tree.build();
    BRDuplicateScanStartViewController *start = duplicates->scanStartViewController();
    BRDuplicateFilesViewController *results = duplicates->duplicateFilesViewController();
    start->setSelectedUrl(QUrl::fromLocalFile(tree.root()));
    ok &= save(window, output, u"6-duplicates-start"_s);

    // The scan's own reports are held back until it has walked the whole folder; its groups
    // are then handed to the results screen a few at a time, so the shot in between is the
    // same on every run.
    {
        const ReportHold hold;
        start->startScanButton()->click();
        for (int wait = 0; wait < 200 && !results->results().walkRunning(); ++wait)
            settle(10);
        ScanThreads::waitForAll();
        QCoreApplication::removePostedEvents(qApp, QEvent::MetaCall);
    }
    if (!results->results().duplicateFinder())
        return 1;
    const GroupMap found = results->results().duplicateFinder()->dictOfDupeFiles();
    QStringList keys = found.keys();
    // In the order the walk formed them: by the path of each group's second copy.
    std::sort(keys.begin(), keys.end(), [&found](const QString &a, const QString &b) {
        return found.find(a)->filePath.value(1) < found.find(b)->filePath.value(1);
    });
    GroupMap arrived;
    qint64 copies = 0;
    qint64 spare = 0;
    const auto arrive = [&](const QString &key) {
        const GroupRecord &record = *found.find(key);
        arrived.insert(key, record);
        copies += record.filePath.size();
        spare += record.totalSize - record.fileSize;
        results->updateDuplicateFiles({arrived, key, false, copies, spare});
    };
    for (qsizetype i = 0; i < qMin<qsizetype>(4, keys.size()); ++i)
        arrive(keys.at(i));
    ok &= save(window, output, u"7-duplicates-scanning"_s);

    for (qsizetype i = 4; i < keys.size(); ++i)
        arrive(keys.at(i));
    results->updateDuplicateFiles({arrived, QString(), true, copies, spare});
    settle();
    results->sortViewController()->photoButton()->click();
    auto *search = results->findChild<QLineEdit *>(u"searchField"_s);
    for (const QChar letter : u"img"_s)
        search->insert(letter);
    ok &= save(window, output, u"8-duplicates-results"_s);

    // The keyboard's row: the list has the focus and the second row is current.
    BRDuplicateTableView *list = results->duplicateTableView();
    list->setFocus(Qt::TabFocusReason);
    pressKey(list, Qt::Key_Down);
    ok &= save(window, output, u"8a-duplicates-keyboard-focus"_s);

    // Enter opens the current row's detail, inside the window.
    pressKey(list, Qt::Key_Return);
    ok &= results->popover() != nullptr && save(window, output, u"9-duplicates-popover"_s);
    results->closePopOver();

    // A copy being checked before it goes: the Trash holds it until the shot is taken.
    {
        QSemaphore entered;
        QSemaphore gate;
        workspace.beforeTrash = [&](const QString &) {
            entered.release();
            gate.acquire();
        };
        results->showPopOverView(0);
        RowAnchoredPopover *popover = results->popover();
        BRDuplicateFilePreviewViewController *detail = results->previewDelegate();
        if (popover && detail && detail->numberOfRowsInTableView() > 1) {
            detail->cellAt(1)->deleteButton()->click();
            for (int wait = 0; wait < 500 && !entered.tryAcquire(); ++wait)
                settle(10);
            ok &= save(window, output, u"9b-duplicates-checking"_s);
        } else {
            ok = false;
        }
        gate.release();
        while (results->isRemovingCopies())
            settle(20);
        workspace.beforeTrash = nullptr;
        results->closePopOver();
    }

    // The alerts a removal can end in, as the desktop shows them.
    {
        const QString name = u"IMG_2043.jpg"_s;
        const QList<std::pair<QString, QString>> removalAlerts{
            {u"9c-alert-changed"_s, CopyRemoval::sentence(CopyRemoval::Outcome::Changed, name)},
            {u"9d-alert-last-copy"_s, CopyRemoval::sentence(CopyRemoval::Outcome::LastCopy, name)},
            {u"9e-alert-not-a-copy"_s, CopyRemoval::sentence(CopyRemoval::Outcome::NotACopy, name)},
            {u"9f-alert-unreadable"_s,
             CopyRemoval::sentence(CopyRemoval::Outcome::Unreadable, name)},
            {u"9g-alert-no-trash"_s,
             FreedesktopTrash::sentence(TrashFailure::NoTrashOnDrive, name)},
            {u"9h-alert-disk-full"_s, FreedesktopTrash::sentence(TrashFailure::DiskFull, name)},
        };
        QtAlertPresenter presenter(&window);
        for (const auto &[shot, text] : removalAlerts) {
            QTimer::singleShot(300, [&, shot = shot] {
                if (QWidget *box = QApplication::activeModalWidget()) {
                    ok &= save(*box, output, shot);
                    box->close();
                }
            });
            presenter.runModal({QCoreApplication::translate("BRDuplicateFilesViewController",
                                                            "Could not remove some files"),
                                text,
                                {u"OK"_s}});
        }
    }

    // Keep one, trash the rest, over the groups listed: the question first, then the
    // summary, each as the desktop shows it.
    {
        alerts.shown.clear();
        alerts.answers = {AlertPresenter::firstButton};
        results->keepOneCopyOfGroupsOnScreen(KeepOnePlan::Rule::Oldest);
        while (results->isKeepingOne())
            settle(20);
        settle();
        const QStringList shots{u"9i-keep-one-question"_s, u"9j-keep-one-summary"_s};
        QtAlertPresenter presenter(&window);
        for (qsizetype i = 0; i < shots.size() && i < alerts.shown.size(); ++i) {
            QTimer::singleShot(300, [&, shot = shots.at(i)] {
                if (QWidget *box = QApplication::activeModalWidget()) {
                    ok &= save(*box, output, shot);
                    box->close();
                }
            });
            presenter.runModal(alerts.shown.at(i));
        }
        ok &= alerts.shown.size() == 2;
    }

    // A new scan, of a folder with nothing in it.
    results->sortViewController()->newScanButton()->click();
    settle();
    tree.makeFolder(u"Empty"_s);
    start->setSelectedUrl(QUrl::fromLocalFile(tree.path(u"Empty"_s)));
    start->startScanButton()->click();
    settle(800);
    ok &= save(window, output, u"10-duplicates-status"_s);

    // The batch renamer over a photo shoot, dropped from a file manager.
    window.findChild<QToolButton *>(QStringLiteral("renameImageButton"))->click();
    settle();
    ok &= save(window, output, u"11-rename-drop-target"_s);
    const SampleTree shoot(scratch.filePath(u"Coast walk"_s));
    QList<QUrl> photos;
    for (int i = 0; i < 9; ++i) {
        const QString name = u"DSC_%1.jpg"_s.arg(4100 + i * 7);
        shoot.writePhoto(name, {640, 480}, static_cast<quint32>(300 + i), i == 4);
        photos.append(QUrl::fromLocalFile(shoot.path(name)));
    }
    shoot.writeBytes(u"Route notes.txt"_s, "Start at the harbour, keep the sea on the left.\n");
    photos.append(QUrl::fromLocalFile(shoot.path(u"Route notes.txt"_s)));
    Q_EMIT renamer->notificationCenter()->dragAndDropComplete(photos);
    settle();
    typeInto(renamer->findChild<QLineEdit *>(u"newNameTextField"_s), u"Coast walk "_s);
    settle();
    // One name written by hand, in the popover of the third row.
    renamer->showPopOver(2);
    settle();
    if (RowAnchoredPopover *popover = renamer->popover()) {
        auto *field = popover->findChild<QLineEdit *>(u"renameFileNewNameTextField"_s);
        field->selectAll();
        typeInto(field, u"Lighthouse at dusk"_s);
        pressReturn(field);
    }
    renamer->closePopOver();
    settle();
    // The mouse rests on the first row, which shows its controls.
    BRRenameTableView *table = renamer->renameTableView();
    hoverRenameRow(table, 0);
    settle();
    ok &= save(window, output, u"12-rename-list"_s);

    renamer->showPopOver(1);
    settle(600);
    ok &= renamer->popover() != nullptr && save(window, output, u"13-rename-popover"_s);
    renamer->closePopOver();

    window.findChild<QPushButton *>(u"renameButton"_s)->click();
    settle(800);
    ok &= save(window, output, u"14-rename-complete"_s);

    // Undo Rename: every file of the walk has its old name again.
    window.findChild<QPushButton *>(u"undoButton"_s)->click();
    settle(800);
    ok &= save(window, output, u"15-rename-undone"_s);
    window.findChild<QPushButton *>(u"doneButton"_s)->click();
    settle();

    // A second shoot, where two of the names the rule gives are taken in the folder and one
    // row is typed to its neighbour's name: four rows are marked before the press.
    const SampleTree harbour(scratch.filePath(u"Harbour"_s));
    QList<QUrl> harbourPhotos;
    for (int i = 0; i < 8; ++i) {
        const QString name = u"IMG_%1.jpg"_s.arg(2301 + i);
        harbour.writePhoto(name, {640, 480}, static_cast<quint32>(500 + i), i == 6);
        harbourPhotos.append(QUrl::fromLocalFile(harbour.path(name)));
    }
    harbour.writePhoto(u"Harbour 3.jpg"_s, {640, 480}, 900);
    harbour.writePhoto(u"Harbour 6.jpg"_s, {640, 480}, 901);
    Q_EMIT renamer->notificationCenter()->dragAndDropComplete(harbourPhotos);
    settle();
    typeInto(renamer->findChild<QLineEdit *>(u"newNameTextField"_s), u"Harbour "_s);
    settle();
    renamer->showPopOver(4);
    settle();
    if (RowAnchoredPopover *popover = renamer->popover()) {
        auto *field = popover->findChild<QLineEdit *>(u"renameFileNewNameTextField"_s);
        field->selectAll();
        typeInto(field, u"Harbour 4"_s);
        pressReturn(field);
    }
    renamer->closePopOver();
    settle();
    hoverRenameRow(table, 2);
    settle();
    ok &= save(window, output, u"16-rename-conflicts"_s);
    // The popover of a marked row says why in words.
    renamer->showPopOver(2);
    settle(600);
    ok &= renamer->popover() != nullptr && save(window, output, u"17-rename-conflict-popover"_s);
    renamer->closePopOver();

    // The press renames the free rows; one of them is locked and fails.
    const QString locked = harbour.path(u"IMG_2302.jpg"_s);
    if (setImmutable(locked, true)) {
        window.findChild<QPushButton *>(u"renameButton"_s)->click();
        settle(800);
        ok &= save(window, output, u"18-rename-partial-failure"_s);
        window.findChild<QPushButton *>(u"showFailedButton"_s)->click();
        settle(600);
        hoverRenameRow(table, 0);
        settle();
        ok &= save(window, output, u"19-rename-failed-files"_s);
        setImmutable(locked, false);
    } else {
        std::printf("cannot lock %s (needs root on ext4): no shots of a partial failure\n",
                    qPrintable(locked));
    }
    return ok ? 0 : 1;
}
