#include "BRDuplicateFilesMainViewDelegate.h"
#include "BRMainViewController.h"
#include "BRTabViewController.h"
#include "ScriptedAlertPresenter.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace {

class RecordingDuplicateSide final : public BRDuplicateFilesMainViewDelegate
{
public:
    QList<bool> scanStatusCalls;
    void updateMainTabViewStatus(bool) override {}
    void selectDuplicateTabViewAtIndex(int) override {}
    void updateDuplicateScanStatus(bool stopScan) override { scanStatusCalls.append(stopScan); }
};

} // namespace

class tst_ModeSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switching_data()
    {
        QTest::addColumn<bool>("scanRuns");
        QTest::addColumn<QStringList>("presses"); // object names of the buttons pressed
        QTest::addColumn<int>("answer");          // to the stop alert, if one comes
        QTest::addColumn<int>("tab");
        QTest::addColumn<int>("alerts");
        QTest::addColumn<QList<bool>>("stopCalls");
        QTest::addColumn<bool>("flagAfter");
        const auto names = [](std::initializer_list<const char *> list) {
            QStringList result;
            for (const char *name : list)
                result.append(QString::fromLatin1(name));
            return result;
        };
        const int stop = AlertPresenter::firstButton;
        const int cancel = AlertPresenter::secondButton;
        QTest::newRow("idle, Rename text")
            << false << names({"renameButton"}) << stop << 1 << 0 << QList<bool>{} << false;
        QTest::newRow("idle, Rename icon, then Duplicates icon")
            << false << names({"renameImageButton", "duplicateImageButton"}) << stop << 0 << 0
            << QList<bool>{} << false;
        QTest::newRow("idle, Duplicates twice")
            << false << names({"duplicateButton", "duplicateButton"}) << stop << 0 << 0
            << QList<bool>{} << false;
        QTest::newRow("scan, Rename text, Stop scan")
            << true << names({"renameButton"}) << stop << 1 << 1 << QList<bool>{true} << false;
        QTest::newRow("scan, Rename icon, Cancel") << true << names({"renameImageButton"}) << cancel
                                                   << 0 << 1 << QList<bool>{false} << true;
        QTest::newRow("scan, Duplicates never asks")
            << true << names({"duplicateImageButton"}) << stop << 0 << 0 << QList<bool>{} << true;
    }
    void switching()
    {
        QFETCH(bool, scanRuns);
        QFETCH(QStringList, presses);
        QFETCH(int, answer);
        QFETCH(int, tab);
        QFETCH(int, alerts);
        QFETCH(QList<bool>, stopCalls);
        QFETCH(bool, flagAfter);
        ScriptedAlertPresenter alertPresenter;
        alertPresenter.answers = {answer};
        RecordingDuplicateSide duplicateSide;
        BRMainViewController main(alertPresenter, new QWidget, new QWidget);
        main.setDuplicateMainViewDelegate(&duplicateSide);
        main.updateTabStatus(scanRuns);

        for (const QString &name : presses)
            main.findChild<QAbstractButton *>(name)->click();

        QCOMPARE(main.tabViewController()->currentIndex(), tab);
        QCOMPARE(alertPresenter.shown.size(), alerts);
        if (alerts) {
            QCOMPARE(alertPresenter.shown[0].title,
                     QStringLiteral("Stop duplicate files scan & switch to rename?"));
            QCOMPARE(alertPresenter.shown[0].buttons,
                     (QStringList{QStringLiteral("Stop scan"), QStringLiteral("Cancel")}));
        }
        QCOMPARE(duplicateSide.scanStatusCalls, stopCalls);
        QCOMPARE(main.renameDisableStatus(), flagAfter);
        const bool duplicatesShown = tab == BRTabViewController::duplicatesIndex;
        const auto colour = [](QPushButton *button) {
            return button->palette().color(QPalette::ButtonText);
        };
        QCOMPARE(colour(main.duplicateButton()),
                 duplicatesShown ? BRMainViewController::selectedTitleColor()
                                 : BRMainViewController::unselectedTitleColor());
        QCOMPARE(colour(main.renameButton()), duplicatesShown
                                                  ? BRMainViewController::unselectedTitleColor()
                                                  : BRMainViewController::selectedTitleColor());
        QCOMPARE(main.duplicateButton()->text(), QStringLiteral("Duplicates"));
        QCOMPARE(main.renameImageButton()->accessibleName(), QStringLiteral("Rename"));
    }
};

QTEST_MAIN(tst_ModeSwitch)
#include "tst_modeswitch.moc"
