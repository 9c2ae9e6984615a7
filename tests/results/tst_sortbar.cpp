#include "BRDuplicateSortPopUpButton.h"
#include "BRDuplicateSortViewController.h"
#include "LookColors.h"
#include "RecordingFilesView.h"

#include <QIcon>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace {

// Steps as the user and the results screen take them, joined by "|": "click:<button>",
// "pick:<item>", "open" (the menu's list opens), "enable:All" (a scan starts).
void run(BRDuplicateSortViewController &bar, const QString &steps)
{
    for (const QString &step : steps.split(u'|', Qt::SkipEmptyParts)) {
        const QString argument = step.section(u':', 1);
        if (step.startsWith(u"click:")) {
            bar.findChild<QAbstractButton *>(argument)->click();
        } else if (step.startsWith(u"pick:")) {
            // What choosing from the list does; the keyboard can reach "Sort By" this way.
            const int index = bar.sortByButton()->findText(argument);
            QVERIFY(index >= 0);
            bar.sortByButton()->setCurrentIndex(index);
            Q_EMIT bar.sortByButton()->activated(index);
        } else if (step == u"open") {
            bar.sortByButton()->showPopup();
            bar.sortByButton()->hidePopup();
        } else if (step == u"enable:All") {
            bar.enableSortType(SubType::All);
        }
    }
}

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(24, 24).toImage();
}

} // namespace

class tst_SortBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Steps and the calls they should send are lists joined by "|".
    void actions_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("selectedKey");
        QTest::addColumn<bool>("subTypeActive");
        QTest::addColumn<QString>("selectedSortType");

        QTest::newRow("All") << "click:allButton"
                             << "sortMainType(All,false)"
                             << "All" << false << "All";
        QTest::newRow("Photo") << "click:photoButton"
                               << "sortSubType(Photo,All)"
                               << "photo" << true << "All";
        QTest::newRow("Music") << "click:musicButton"
                               << "sortSubType(Music,All)"
                               << "music" << true << "All";
        QTest::newRow("Document") << "click:documentButton"
                                  << "sortSubType(Document,All)"
                                  << "document" << true << "All";
        QTest::newRow("Folder") << "click:folderButton"
                                << "sortSubType(Folder,All)"
                                << "folder" << true << "All";
        QTest::newRow("the selected sub-type again sends again")
            << "click:photoButton|click:photoButton"
            << "sortSubType(Photo,All)|sortSubType(Photo,All)"
            << "photo" << true << "All";
        QTest::newRow("a sub-type carries the picked order")
            << "pick:Size|click:musicButton"
            << "sortMainType(Size,false)|sortSubType(Music,Size)"
            << "music" << true << "Size";
        QTest::newRow("a pick under a sub-type")
            << "click:documentButton|pick:Name"
            << "sortSubType(Document,All)|sortMainType(Name,true)"
            << "document" << true << "Name";
        QTest::newRow("All after a sub-type") << "click:folderButton|click:allButton"
                                              << "sortSubType(Folder,All)|sortMainType(All,false)"
                                              << "All" << false << "All";
        QTest::newRow("a scan start clears the sub-type and sends nothing")
            << "click:photoButton|enable:All"
            << "sortSubType(Photo,All)"
            << "All" << false << "All";
        QTest::newRow("the first opening sorts by the first item, keeping the picked order")
            << "pick:Type|enable:All|open|click:photoButton"
            << "sortMainType(Type,false)|sortMainType(All,false)|sortSubType(Photo,Type)"
            << "photo" << true << "Type";
        QTest::newRow("later openings sort no more") << "enable:All|enable:All|open|open"
                                                     << "sortMainType(All,false)"
                                                     << "All" << false << "All";
        QTest::newRow("the placeholder itself never sorts") << "enable:All|pick:Sort By"
                                                            << ""
                                                            << "All" << false << "All";
        QTest::newRow("New") << "click:newScanButton"
                             << "startNewScanProcess"
                             << "All" << false << "All";
    }
    void actions()
    {
        QFETCH(QString, steps);
        QFETCH(QString, calls);
        QFETCH(QString, selectedKey);
        QFETCH(bool, subTypeActive);
        QFETCH(QString, selectedSortType);
        RecordingFilesView results;
        BRDuplicateSortViewController bar;
        bar.setDuplicateFileViewDelegate(&results);

        run(bar, steps);

        QCOMPARE(results.calls, calls.split(u'|', Qt::SkipEmptyParts));
        QCOMPARE(bar.subTypeActive(), subTypeActive);
        QCOMPARE(sortOrderTitle(bar.selectedSortOrder()), selectedSortType);
        for (const char *key : {"All", "photo", "music", "document", "folder"}) {
            const QString name = QString::fromLatin1(key);
            QCOMPARE(bar.isSubTypeSelected(name), name == selectedKey);
        }
    }

    void looksFollowSelection_data()
    {
        QTest::addColumn<QString>("button");
        for (const char *button :
             {"allButton", "photoButton", "musicButton", "documentButton", "folderButton"})
            QTest::newRow(button) << QString::fromLatin1(button);
    }
    void looksFollowSelection()
    {
        QFETCH(QString, button);
        BRDuplicateSortViewController bar;
        bar.findChild<QAbstractButton *>(button)->click();
        const struct
        {
            QToolButton *button;
            const char *selected;
            const char *unselected;
        } images[] = {{bar.photoButton(), "photos_selected", "photos"},
                      {bar.musicButton(), "music_n_videos_selected", "music_n_videos"},
                      {bar.documentButton(), "documents_selected", "documents"},
                      {bar.folderButton(), "folders_selected", "folders"}};
        for (const auto &image : images) {
            const bool selected = image.button->objectName() == button;
            const char *name = selected ? image.selected : image.unselected;
            const QIcon expected(QStringLiteral(":/images/%1.svg").arg(QString::fromLatin1(name)));
            QVERIFY2(imageOf(image.button->icon()) == imageOf(expected), name);
        }
        const QColor allColour = bar.allButton()->palette().color(QPalette::ButtonText);
        QCOMPARE(allColour, Look::color(button == u"allButton" ? Look::Color::DuplicatesAccent
                                                               : Look::Color::SecondaryText));
        QCOMPARE(bar.allButton()->text(), QStringLiteral("All"));
        QCOMPARE(bar.newScanButton()->text(), QStringLiteral("New"));
        QCOMPARE(bar.musicButton()->accessibleName(), QStringLiteral("Music & Videos"));
    }

    void aMissingResultsScreenOrUnknownKeyChangesLooksOnly()
    {
        BRDuplicateSortViewController bar;
        run(bar, QStringLiteral("click:musicButton|enable:All|open|pick:Size|click:newScanButton"));
        QCOMPARE(bar.selectedSortOrder(), SortOrder::Size);
        bar.enableSubType(QStringLiteral("video"));
        bar.disableSubType(QStringLiteral("Photo")); // the results' name, not the bar's key
        QVERIFY(bar.isSubTypeSelected(QStringLiteral("All")));
        QVERIFY(!bar.isSubTypeSelected(QStringLiteral("video")));
    }

    void placeholderShowsFromScanStartToFirstOpening()
    {
        BRDuplicateSortViewController bar;
        QComboBox *menu = bar.sortByButton();
        const QStringList items = BRDuplicateSortViewController::sortTypes();
        const auto shown = [menu] {
            QStringList texts;
            for (int i = 0; i < menu->count(); ++i)
                texts.append(menu->itemText(i));
            return texts;
        };
        QCOMPARE(shown(), items);
        QCOMPARE(menu->currentText(), QStringLiteral("All"));
        run(bar, QStringLiteral("pick:Size|enable:All"));
        QCOMPARE(shown(), QStringList{QStringLiteral("Sort By")} + items);
        QCOMPARE(menu->currentText(), QStringLiteral("Sort By"));
        run(bar, QStringLiteral("open"));
        QCOMPARE(shown(), items);
        QCOMPARE(menu->currentText(), QStringLiteral("All"));
    }
};

QTEST_MAIN(tst_SortBar)
#include "tst_sortbar.moc"
