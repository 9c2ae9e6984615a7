#include "FilePreviewView.h"
#include "FilesAndFoldersDialog.h"
#include "RowAnchoredPopover.h"
#include "TestDir.h"
#include "Thumbnail.h"
#include "ThumbnailCache.h"

#include <QAccessible>
#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>
#include <QTimer>

// A window with a list that has the focus, and a popover with two fields beside it.
struct Overlay
{
    QWidget window;
    QLineEdit *list = new QLineEdit(&window);
    QWidget *owner = new QWidget(&window);
    QWidget *content = new QWidget;
    QLineEdit *first = new QLineEdit(content);
    QLineEdit *second = new QLineEdit(content);
    QPointer<RowAnchoredPopover> popover;

    Overlay()
    {
        window.resize(500, 400);
        list->setGeometry(10, 10, 100, 30);
        owner->setGeometry(0, 50, 500, 350);
        content->setFixedSize(200, 120);
        first->setGeometry(10, 10, 150, 30);
        second->setGeometry(10, 60, 150, 30);
        window.show();
        QApplication::setActiveWindow(&window);
        list->setFocus();
        popover = new RowAnchoredPopover(content, owner);
        popover->setAccessibleName(QStringLiteral("beach.jpg"));
    }
};

// The preview square of the detail popover, and the popover that carries it.
class tst_Preview : public QObject
{
    Q_OBJECT

    TestDir m_dir;

    QString imageFile(const QString &name, QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return m_dir.createFile(name, png);
    }

    static void waitUntilShown(FilePreviewView &view)
    {
        if (view.isLoading()) {
            QSignalSpy ready(&view, &FilePreviewView::previewReady);
            QVERIFY(ready.wait());
        }
    }

private Q_SLOTS:
    void kinds_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<FilePreviewView::Kind>("kind");
        using Kind = FilePreviewView::Kind;
        QTest::newRow("image") << imageFile(QStringLiteral("a.png"), {40, 30}) << Kind::Picture;
        // The contents decide, not the name.
        QTest::newRow("image under another name")
            << imageFile(QStringLiteral("a.dat"), {40, 30}) << Kind::Picture;
        QTest::newRow("text") << m_dir.createFile(QStringLiteral("a.txt"), "first line\nsecond\n")
                              << Kind::Text;
        QTest::newRow("source code is text")
            << m_dir.createFile(QStringLiteral("a.cpp"), "int main() {}\n") << Kind::Text;
        QTest::newRow("binary") << m_dir.createFile(QStringLiteral("a.bin"),
                                                    QByteArray("\x00\x01\x02\xff\xfe", 5))
                                << Kind::Icon;
        QTest::newRow("image header, broken body")
            << m_dir.createFile(QStringLiteral("broken.png"),
                                QByteArray("\x89PNG\r\n\x1a\n\x00\x00\x00\x0dIHDR", 16))
            << Kind::Icon;
        QTest::newRow("folder") << m_dir.createDir(QStringLiteral("folder")) << Kind::Icon;
        QTest::newRow("missing") << m_dir.filePath(QStringLiteral("gone.png")) << Kind::Icon;
    }
    void kinds()
    {
        QFETCH(QString, path);
        FilePreviewView view;
        view.setPreviewItem(QUrl::fromLocalFile(path));
        waitUntilShown(view);
        QTEST(view.kind(), "kind");
        QCOMPARE(view.size(), QSize(230, 230));
        QVERIFY(!view.grab().isNull()); // paints whatever it chose
        if (view.kind() == FilePreviewView::Kind::Picture)
            QCOMPARE(view.picture().size(), QSize(40, 30));
        if (QTest::currentDataTag() == QByteArray("text"))
            QCOMPARE(view.textLines().value(0), QStringLiteral("first line"));
    }

    void thumbnailsForDenseScreens_data()
    {
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QSize>("size");
        QTest::newRow("plain screen") << qreal(1.0) << QSize(70, 70);
        QTest::newRow("a smaller ratio never shrinks it") << qreal(0.5) << QSize(70, 70);
        QTest::newRow("150%") << qreal(1.5) << QSize(105, 105);
        QTest::newRow("200%") << qreal(2.0) << QSize(140, 140);
    }
    // A dense screen's thumbnail has the pixels the frame shows, and is kept apart from the
    // plain one in the scan's shared cache.
    void thumbnailsForDenseScreens()
    {
        QFETCH(qreal, ratio);
        QFETCH(QSize, size);
        QImage photo(800, 800, QImage::Format_RGB32);
        photo.fill(Qt::darkGreen);
        const QString path = m_dir.filePath(QStringLiteral("dense.png"));
        QVERIFY(photo.save(path));
        const auto cache = std::make_shared<ThumbnailCache>();
        const Thumbnail plain(path, QSize(70, 70), cache);
        const Thumbnail dense = plain.atPixelRatio(ratio);
        QCOMPARE(dense.path(), path);
        QCOMPARE(dense.size(), size);
        QCOMPARE(dense.image().size(), size);
        QCOMPARE(dense.cachedImage().size(), size);
        QCOMPARE(plain.cachedImage().isNull(), size != QSize(70, 70));
    }

    void largePictureFitsKeepingItsShape()
    {
        FilePreviewView view;
        view.setPreviewItem(QUrl::fromLocalFile(imageFile(QStringLiteral("wide.png"), {800, 400})));
        waitUntilShown(view);
        const QSize shown = view.picture().deviceIndependentSize().toSize();
        QVERIFY(shown.width() <= 230 && shown.height() <= 230);
        QCOMPARE(shown.width(), 2 * shown.height());
    }

    void longTextIsCut()
    {
        QByteArray text;
        while (text.size() < 3 * FilePreviewView::textLimit)
            text += "a line of text, \xc3\xa9 included\n";
        FilePreviewView view;
        view.setPreviewItem(
            QUrl::fromLocalFile(m_dir.createFile(QStringLiteral("long.txt"), text)));
        QCOMPARE(view.kind(), FilePreviewView::Kind::Text);
        QVERIFY(view.textLines().join(QLatin1Char('\n')).size() <= FilePreviewView::textLimit);
        QVERIFY(!view.textLines().join(QString()).contains(QChar::ReplacementCharacter));
    }

    void aLatePictureDoesNotReplaceTheNextItem()
    {
        FilePreviewView view;
        view.setPreviewItem(QUrl::fromLocalFile(imageFile(QStringLiteral("late.png"), {900, 900})));
        view.setPreviewItem(
            QUrl::fromLocalFile(m_dir.createFile(QStringLiteral("next.txt"), "next\n")));
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QCOMPARE(view.kind(), FilePreviewView::Kind::Text);
        QVERIFY(view.picture().isNull());
    }

    void popoverPlacement_data()
    {
        QTest::addColumn<bool>("nearRightEdge");
        QTest::addColumn<int>("preferredEdge");
        QTest::addColumn<int>("shownEdge");
        QTest::newRow("room on the right") << false << int(Qt::RightEdge) << int(Qt::RightEdge);
        QTest::newRow("no room on the right") << true << int(Qt::RightEdge) << int(Qt::LeftEdge);
        QTest::newRow("no room on the left") << false << int(Qt::LeftEdge) << int(Qt::RightEdge);
    }
    void popoverPlacement()
    {
        QFETCH(bool, nearRightEdge);
        QFETCH(int, preferredEdge);
        QWidget view;
        view.setGeometry(QGuiApplication::primaryScreen()->availableGeometry());
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        // The popover stands inside the window, and is placed in its coordinates.
        const QRect available(QPoint(), view.size());
        auto *content = new QWidget;
        content->setFixedSize(300, 200);
        QPointer<RowAnchoredPopover> popover = new RowAnchoredPopover(content, &view);
        const QRect row(nearRightEdge ? available.width() - 120 : 10, 40, 100, 30);
        popover->showRelativeToRect(row, &view, static_cast<Qt::Edge>(preferredEdge));

        const QRect anchor = row;
        const QRect frame = popover->geometry();
        QTEST(int(popover->shownEdge()), "shownEdge");
        if (popover->shownEdge() == Qt::RightEdge)
            QCOMPARE(frame.left(), anchor.right() + 1);
        else
            QCOMPARE(frame.right(), anchor.left() - 1);
        // The row sits near the top: the popover is held on the screen rather than centred.
        QCOMPARE(frame.top(), available.top());
        QVERIFY(available.contains(frame));
        QVERIFY(popover->content() == content && content->isVisible());
    }

    void popoverCloses_data()
    {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("Escape") << true;
        QTest::newRow("click outside") << false;
    }
    void popoverCloses()
    {
        QFETCH(bool, byEscape);
        QWidget view;
        view.resize(400, 400);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        auto *content = new QWidget;
        content->setFixedSize(100, 80);
        QPointer<RowAnchoredPopover> popover = new RowAnchoredPopover(content, &view);
        QSignalSpy closed(popover.data(), &RowAnchoredPopover::closed);
        popover->showRelativeToRect(QRect(10, 150, 100, 30), &view, Qt::RightEdge);
        // A row in the middle of the window: the popover is centred on it.
        const QRect anchor(QPoint(10, 150), QSize(100, 30));
        QVERIFY(qAbs(popover->geometry().center().y() - anchor.center().y()) <= 1);
        if (byEscape)
            QTest::keyClick(popover, Qt::Key_Escape);
        else
            QTest::mouseClick(popover, Qt::LeftButton, {}, QPoint(-20, -20));
        QCOMPARE(closed.count(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(popover.isNull());
    }

    void popoverIsANamedDialogInItsWindow()
    {
        QAccessible::setActive(true);
        Overlay overlay;
        QVERIFY(QTest::qWaitForWindowActive(&overlay.window));
        overlay.popover->showRelativeToRect(QRect(10, 10, 100, 30), overlay.list, Qt::RightEdge);
        // An overlay of the window, not a window of its own, so readers find it there.
        QVERIFY(!overlay.popover->isWindow());
        QCOMPARE(overlay.popover->parentWidget(), &overlay.window);
        QVERIFY(QRect(QPoint(), overlay.window.size()).contains(overlay.popover->geometry()));
        QAccessibleInterface *node = QAccessible::queryAccessibleInterface(overlay.popover);
        QCOMPARE(node->role(), QAccessible::Dialog);
        QCOMPARE(node->text(QAccessible::Name), QStringLiteral("beach.jpg"));
        QAccessibleInterface *window = QAccessible::queryAccessibleInterface(&overlay.window);
        QVERIFY(window->indexOfChild(node) >= 0);
    }

    void popoverKeepsAndReturnsTheFocus_data()
    {
        QTest::addColumn<int>("way"); // 0 Escape, 1 owner's close(), 2 Escape from outside
        QTest::newRow("Escape") << 0;
        QTest::newRow("closed by its owner") << 1;
        QTest::newRow("Escape with the focus left outside") << 2;
    }
    void popoverKeepsAndReturnsTheFocus()
    {
        QFETCH(int, way);
        Overlay overlay;
        QVERIFY(QTest::qWaitForWindowActive(&overlay.window));
        QVERIFY(overlay.list->hasFocus());
        QSignalSpy closed(overlay.popover.data(), &RowAnchoredPopover::closed);
        overlay.popover->showRelativeToRect(QRect(10, 10, 100, 30), overlay.list, Qt::RightEdge);
        QCOMPARE(QApplication::focusWidget(), overlay.first);
        // Tab goes round inside, both ways.
        QTest::keyClick(overlay.first, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), overlay.second);
        QTest::keyClick(overlay.second, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), overlay.first);
        QTest::keyClick(overlay.first, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), overlay.second);

        if (way == 0) {
            QTest::keyClick(overlay.second, Qt::Key_Escape);
        } else if (way == 1) {
            overlay.popover->close();
        } else {
            overlay.list->setFocus();
            QTest::keyClick(overlay.list, Qt::Key_Escape);
        }
        QCOMPARE(closed.count(), 1);
        QCOMPARE(QApplication::focusWidget(), overlay.list);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(overlay.popover.isNull());
    }

    void popoverGoesWithItsOwner()
    {
        Overlay overlay;
        QVERIFY(QTest::qWaitForWindowExposed(&overlay.window));
        QSignalSpy closed(overlay.popover.data(), &RowAnchoredPopover::closed);
        overlay.popover->showRelativeToRect(QRect(10, 10, 100, 30), overlay.list, Qt::RightEdge);
        // Another screen takes the owner's place: the popover does not stay over it.
        overlay.owner->hide();
        QCOMPARE(closed.count(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(overlay.popover.isNull());

        Overlay again;
        again.popover->showRelativeToRect(QRect(10, 10, 100, 30), again.list, Qt::RightEdge);
        delete again.owner;
        QVERIFY(again.popover.isNull());
    }

    void foldersAndFilesChosenTogether_data()
    {
        QTest::addColumn<bool>("foldersChoosable");
        QTest::addColumn<QStringList>("highlighted");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("a folder") << true << QStringList{QStringLiteral("pics")} << true;
        QTest::newRow("a file") << true << QStringList{QStringLiteral("a.txt")} << true;
        QTest::newRow("a file and a folder")
            << true << QStringList{QStringLiteral("a.txt"), QStringLiteral("pics")} << true;
        QTest::newRow("files only: a folder is entered")
            << false << QStringList{QStringLiteral("pics")} << false;
        QTest::newRow("a name that is not there")
            << true << QStringList{QStringLiteral("gone.txt")} << false;
    }
    void foldersAndFilesChosenTogether()
    {
        QFETCH(bool, foldersChoosable);
        QFETCH(QStringList, highlighted);
        m_dir.createFile(QStringLiteral("chooser/a.txt"), "a");
        m_dir.createDir(QStringLiteral("chooser/pics"));
        const QString folder = m_dir.filePath(QStringLiteral("chooser"));
        FilesAndFoldersDialog dialog(nullptr, QStringLiteral("Choose files to rename"), folder);
        dialog.setFoldersChoosable(foldersChoosable);
        // A message box about a missing name would wait for an answer.
        QTimer::singleShot(0, &dialog, [] {
            if (QWidget *box = QApplication::activeModalWidget();
                box && !qobject_cast<QFileDialog *>(box))
                box->close();
        });
        dialog.open();
        QString text;
        for (const QString &name : highlighted)
            text += QLatin1Char('"') + name + QStringLiteral("\" ");
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(text.trimmed());
        dialog.accept();
        QFETCH(bool, accepted);
        QCOMPARE(dialog.result() == QDialog::Accepted, accepted);
        if (accepted) {
            QStringList expected;
            for (const QString &name : highlighted)
                expected.append(folder + QLatin1Char('/') + name);
            QStringList chosen = dialog.selectedFiles();
            chosen.sort();
            expected.sort();
            QCOMPARE(chosen, expected);
        }
        dialog.close();
    }

    void aFolderTypedWithASlashIsEntered()
    {
        m_dir.createDir(QStringLiteral("typed/pics/inner"));
        const QString folder = m_dir.filePath(QStringLiteral("typed"));
        FilesAndFoldersDialog dialog(nullptr, QStringLiteral("Choose files to rename"), folder);
        dialog.setFoldersChoosable(true);
        dialog.open();
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))
            ->setText(QStringLiteral("pics/"));
        dialog.accept();
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.directory().absolutePath(), folder + QStringLiteral("/pics"));
        dialog.close();
    }
};

QTEST_MAIN(tst_Preview)
#include "tst_preview.moc"
