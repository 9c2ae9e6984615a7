#include "FilePreviewView.h"
#include "RowAnchoredPopover.h"
#include "TestDir.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

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
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        QWidget view;
        view.setGeometry(available);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        auto *content = new QWidget;
        content->setFixedSize(300, 200);
        QPointer<RowAnchoredPopover> popover = new RowAnchoredPopover(content, &view);
        const QRect row(nearRightEdge ? available.width() - 120 : 10, 40, 100, 30);
        popover->showRelativeToRect(row, &view, static_cast<Qt::Edge>(preferredEdge));

        const QRect anchor(view.mapToGlobal(row.topLeft()), row.size());
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
        // A row in the middle of the screen: the popover is centred on it.
        const QRect anchor(view.mapToGlobal(QPoint(10, 150)), QSize(100, 30));
        QVERIFY(qAbs(popover->geometry().center().y() - anchor.center().y()) <= 1);
        if (byEscape)
            QTest::keyClick(popover, Qt::Key_Escape);
        else
            QTest::mouseClick(popover, Qt::LeftButton, {}, QPoint(-20, -20));
        QCOMPARE(closed.count(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(popover.isNull());
    }
};

QTEST_MAIN(tst_Preview)
#include "tst_preview.moc"
