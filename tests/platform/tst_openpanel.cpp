#include "FilesAndFoldersDialog.h"
#include "QtOpenPanel.h"
#include "TestDir.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(QFileDialog::FileMode)

namespace {

// Runs `step` on the next modal window of type T to come up, once the event loop is back.
template <typename T> void whenModal(std::function<void(T *)> step)
{
    QTimer::singleShot(50, qApp, [step = std::move(step)] {
        if (auto *modal = qobject_cast<T *>(QApplication::activeModalWidget()))
            step(modal);
        else
            whenModal<T>(step);
    });
}

} // namespace

// The open panel as the desktop's dialog where it can be, Qt's where it must: what each
// panel's shape asks of the dialog, and the screening of what was chosen.
class tst_OpenPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void configure_data()
    {
        QTest::addColumn<bool>("files");
        QTest::addColumn<bool>("folders");
        QTest::addColumn<bool>("several");
        QTest::addColumn<QFileDialog::FileMode>("mode");
        QTest::addColumn<bool>("qtsOwn");
        QTest::newRow("a folder") << false << true << false << QFileDialog::Directory << false;
        QTest::newRow("a file") << true << false << false << QFileDialog::ExistingFile << false;
        QTest::newRow("files") << true << false << true << QFileDialog::ExistingFiles << false;
        QTest::newRow("files and folders")
            << true << true << true << QFileDialog::ExistingFiles << true;
    }
    // Only files and folders together keep to Qt's dialog; every other panel leaves the
    // choice to Qt, which takes the desktop's dialog where its theme has one.
    void configure()
    {
        QFETCH(bool, files);
        QFETCH(bool, folders);
        QFETCH(bool, several);
        QFETCH(QFileDialog::FileMode, mode);
        QFETCH(bool, qtsOwn);
        OpenPanelRequest request;
        request.message = u"Choose a folder to scan"_s;
        request.prompt = u"Choose"_s;
        request.canChooseFiles = files;
        request.canChooseDirectories = folders;
        request.allowsMultipleSelection = several;
        QCOMPARE(QtOpenPanel::needsFilesAndFolders(request), qtsOwn);
        QFileDialog dialog;
        QtOpenPanel::configure(dialog, request);
        QCOMPARE(dialog.fileMode(), mode);
        QCOMPARE(dialog.testOption(QFileDialog::ShowDirsOnly), folders && !files);
        QVERIFY(!dialog.testOption(QFileDialog::DontUseNativeDialog));
        QVERIFY(dialog.testOption(QFileDialog::ReadOnly));
        QCOMPARE(dialog.windowTitle(), u"Choose a folder to scan"_s);
        QCOMPARE(dialog.labelText(QFileDialog::Accept), u"Choose"_s);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
    }

    void screening()
    {
        OpenPanelRequest request;
        const QStringList paths{u"/home/anna/a"_s, u"/etc"_s, u"/home/anna"_s};
        QCOMPARE(QtOpenPanel::screen(paths, request).chosen.size(), 3);
        request.shouldEnable = [](const QString &path) {
            return path.startsWith(u"/home/");
        };
        const QtOpenPanel::Screened screened = QtOpenPanel::screen(paths, request);
        QCOMPARE(screened.chosen, (QList<QUrl>{QUrl::fromLocalFile(u"/home/anna/a"_s),
                                               QUrl::fromLocalFile(u"/home/anna"_s)}));
        QCOMPARE(screened.refused, QStringList{u"/etc"_s});
    }

    // Without a desktop theme Qt shows its own dialog, which greys out what may not be
    // chosen; a path typed anyway is refused in a sentence and the panel opens again.
    void aRefusedChoiceIsSaidAndThePanelOpensAgain()
    {
        TestDir dir;
        const QString inside = dir.createDir(u"home/anna"_s);
        const QString outside = dir.createDir(u"elsewhere"_s);
        OpenPanelRequest request;
        request.directory = dir.path();
        request.message = u"Choose a Home Folder"_s;
        request.canChooseFiles = false;
        request.canChooseDirectories = true;
        request.shouldEnable = [&](const QString &path) {
            return path.startsWith(inside);
        };
        request.refusal = u"\u201C%1\u201D is not inside your home folder."_s;

        QStringList seen;
        const auto choose = [&](QFileDialog *dialog, const QString &path) {
            seen.append(dialog->windowTitle());
            dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
            static_cast<QDialog *>(dialog)->accept();
        };
        whenModal<QFileDialog>([&](QFileDialog *dialog) {
            // The greying comes once the dialog is up.
            QVERIFY(dialog->proxyModel() != nullptr);
            const QModelIndex outsideRow = dialog->proxyModel()->mapFromSource(
                qobject_cast<QFileSystemModel *>(dialog->proxyModel()->sourceModel())
                    ->index(outside));
            QVERIFY(!(dialog->proxyModel()->flags(outsideRow) & Qt::ItemIsEnabled));
            choose(dialog, outside);
            whenModal<QMessageBox>([&](QMessageBox *box) {
                seen.append(box->text());
                box->close();
                whenModal<QFileDialog>([&](QFileDialog *again) { choose(again, inside); });
            });
        });
        QtOpenPanel panel;
        const QList<QUrl> chosen = panel.runModal(request);
        QCOMPARE(chosen, QList<QUrl>{QUrl::fromLocalFile(inside)});
        QCOMPARE(seen,
                 (QStringList{u"Choose a Home Folder"_s,
                              u"\u201C"_s + outside + u"\u201D is not inside your home folder."_s,
                              u"Choose a Home Folder"_s}));
    }
};

QTEST_MAIN(tst_OpenPanel)
#include "tst_openpanel.moc"
