#include "FocusRing.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

// The ring marks the control the keyboard reached, follows it, and stays away from focus
// a click gave and from controls that mark their own.
class tst_FocusRing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheKeyboard()
    {
        QWidget window;
        auto *field = new QLineEdit(&window);
        auto *button = new QPushButton(QStringLiteral("Start"), &window);
        auto *list = new QListWidget(&window);
        auto *own = new QPushButton(QStringLiteral("Own"), &window);
        own->setProperty("drawsOwnFocus", true);
        auto *layout = new QVBoxLayout(&window);
        for (QWidget *widget : {static_cast<QWidget *>(field), static_cast<QWidget *>(button),
                                static_cast<QWidget *>(list), static_cast<QWidget *>(own)})
            layout->addWidget(widget);
        FocusRing ring;
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));

        field->setFocus(Qt::TabFocusReason);
        QCOMPARE(ring.target(), field);
        QVERIFY(ring.ring()->isVisible());
        QVERIFY(ring.ring()->geometry().contains(field->geometry()));

        QTest::keyClick(field, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), button);
        QVERIFY(ring.ring()->geometry().contains(button->geometry()));
        button->move(button->x() + 40, button->y());
        QVERIFY(ring.ring()->geometry().contains(button->geometry()));

        list->setFocus(Qt::TabFocusReason); // draws its current row itself
        QVERIFY(!ring.ring()->isVisible());
        own->setFocus(Qt::TabFocusReason);
        QVERIFY(!ring.ring()->isVisible());

        // A press that gives the focus leaves no ring.
        QTest::mousePress(field, Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), field);
        QVERIFY(!ring.ring()->isVisible());
        QTest::mouseRelease(field, Qt::LeftButton);
    }
};

QTEST_MAIN(tst_FocusRing)
#include "tst_focusring.moc"
