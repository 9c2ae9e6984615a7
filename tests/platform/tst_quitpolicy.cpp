#include "QuitPolicy.h"

#include <QTest>

using QuitPolicy::Clears;
using QuitPolicy::Request;

Q_DECLARE_METATYPE(QuitPolicy::Request)
Q_DECLARE_METATYPE(QuitPolicy::Clears)

namespace {

const QString scan =
    QStringLiteral("Duplicate files scan is in progress. Are you sure you want to quit Quillmere?");
const QString lost =
    QStringLiteral("The current list of the duplicate search results will be lost. Are you sure "
                   "you want to quit Quillmere?");
const QString renameList =
    QStringLiteral("There are files selected for rename. Are you sure you want to quit Quillmere?");
const QString both = QStringLiteral(
    "There are files selected for rename, and the current list of the duplicate search results "
    "will be lost. Are you sure you want to quit Quillmere?");

} // namespace

class tst_QuitPolicy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Every way out, with what the program holds: the question asked (none: it just goes),
    // what "Quit" drops, and whether "Cancel" brings the window forward.
    void decide_data()
    {
        QTest::addColumn<Request>("request");
        QTest::addColumn<bool>("scanRunning");
        QTest::addColumn<int>("groupsHeld");
        QTest::addColumn<int>("renameRows");
        QTest::addColumn<QString>("message");
        QTest::addColumn<Clears>("clears");
        QTest::addColumn<bool>("raises");

        const auto row = [](const char *name, Request request, bool scanRunning, int groups,
                            int rows, const QString &message, Clears clears, bool raises) {
            QTest::newRow(name) << request << scanRunning << groups << rows << message << clears
                                << raises;
        };
        // The Quit command: as the close button, with the window brought forward to ask.
        row("quit, nothing held", Request::Quit, false, 0, 0, {}, Clears::Nothing, false);
        row("quit, scan", Request::Quit, true, 0, 0, scan, Clears::ApplicationStatus, true);
        row("quit, scan beats results", Request::Quit, true, 4, 0, scan, Clears::ApplicationStatus,
            true);
        row("quit, results", Request::Quit, false, 5, 0, lost, Clears::ApplicationStatus, true);
        row("quit, rename list only", Request::Quit, false, 0, 7, renameList,
            Clears::ApplicationStatus, true);
        row("quit, rename list and results", Request::Quit, false, 2, 7, both,
            Clears::ApplicationStatus, true);

        // Closing on the results screen: its own scan and groups, dropped on "Quit".
        row("results close, nothing held", Request::CloseOnDuplicates, false, 0, 3, {},
            Clears::Nothing, false);
        row("results close, scan", Request::CloseOnDuplicates, true, 2, 0, scan,
            Clears::DuplicateResults, false);
        row("results close, groups", Request::CloseOnDuplicates, false, 1, 0, lost,
            Clears::DuplicateResults, false);
        row("results close, groups and rename rows", Request::CloseOnDuplicates, false, 3, 2, both,
            Clears::DuplicateResults, false);

        // Closing on the rename screen: its list first, then finished results; both held,
        // the one question names both.
        row("rename close, nothing held", Request::CloseOnRename, false, 0, 0, {}, Clears::Nothing,
            false);
        row("rename close, rows", Request::CloseOnRename, false, 0, 1, renameList, Clears::Nothing,
            false);
        row("rename close, rows and results", Request::CloseOnRename, false, 9, 1, both,
            Clears::ApplicationStatus, false);
        row("rename close, rows, scan running", Request::CloseOnRename, true, 9, 1, renameList,
            Clears::Nothing, false);
        row("rename close, results", Request::CloseOnRename, false, 9, 0, lost,
            Clears::ApplicationStatus, false);
        row("rename close, scan running", Request::CloseOnRename, true, 9, 0, {}, Clears::Nothing,
            false);
    }
    void decide()
    {
        QFETCH(Request, request);
        QFETCH(bool, scanRunning);
        QFETCH(int, groupsHeld);
        QFETCH(int, renameRows);
        QFETCH(QString, message);
        QFETCH(Clears, clears);
        QFETCH(bool, raises);

        const QuitPolicy::Decision decision =
            QuitPolicy::decide(request, {scanRunning, groupsHeld, renameRows});
        QCOMPARE(decision.alert.has_value(), !message.isEmpty());
        if (decision.alert) {
            QCOMPARE(decision.alert->title, QStringLiteral("Quit Quillmere?"));
            QCOMPARE(decision.alert->message, message);
        }
        QCOMPARE(decision.onQuit, clears);
        QCOMPARE(decision.raiseWindowOnCancel, raises);
    }
};

QTEST_GUILESS_MAIN(tst_QuitPolicy)
#include "tst_quitpolicy.moc"
