#include "BRColorHelper.h"
#include "CustomTextField.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>

class tst_Controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("readOnly");
        // After the key; "world" was selected. Null: left to the field's ordinary handling.
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("clipboard"); // after the key; it held "pasted"
        const int ctrl = Qt::ControlModifier;
        const auto row = [](const char *name, int key, int modifiers, bool readOnly,
                            const char *text, const char *selected, const char *clipboard) {
            QTest::newRow(name) << key << modifiers << readOnly
                                << (text ? QString::fromLatin1(text) : QString())
                                << (selected ? QString::fromLatin1(selected) : QString())
                                << QString::fromLatin1(clipboard);
        };
        row("Ctrl+C copies", Qt::Key_C, ctrl, false, "hello world", "world", "world");
        row("Ctrl+X cuts", Qt::Key_X, ctrl, false, "hello ", "", "world");
        row("Ctrl+V pastes", Qt::Key_V, ctrl, false, "hello pasted", "", "pasted");
        row("Ctrl+A selects all", Qt::Key_A, ctrl, false, "hello world", "hello world", "pasted");
        row("Ctrl+Alt+C is no copy", Qt::Key_C, ctrl | Qt::AltModifier, false, nullptr, nullptr,
            "pasted");
        row("Ctrl+X in a read-only field", Qt::Key_X, ctrl, true, "hello world", "world", "pasted");
        row("Ctrl+V in a read-only field", Qt::Key_V, ctrl, true, "hello world", "world", "pasted");
    }
    void editKeys()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, readOnly);
        QFETCH(QString, text);
        QFETCH(QString, selected);
        QFETCH(QString, clipboard);
        // A window shortcut on the same keys must not take them from the field.
        QMainWindow window;
        QAction windowCopy(&window);
        windowCopy.setShortcut(QKeySequence::Copy);
        window.addAction(&windowCopy);
        QSignalSpy windowShortcut(&windowCopy, &QAction::triggered);
        auto *field = new CustomTextField(&window);
        window.setCentralWidget(field);
        window.show();
        field->setFocus();
        QApplication::clipboard()->setText(QStringLiteral("pasted"));
        field->setText(QStringLiteral("hello world"));
        field->setReadOnly(readOnly);
        field->setSelection(6, 5);

        QTest::keyClick(field, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
        if (!text.isNull()) {
            QCOMPARE(field->text(), text);
            QCOMPARE(field->selectedText(), selected);
        }
        QCOMPARE(QApplication::clipboard()->text(), clipboard);
        QCOMPARE(windowShortcut.count(), 0);
    }

    void undoAndRedo()
    {
        CustomTextField field;
        QTest::keyClicks(&field, QStringLiteral("abc"));
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.text(), QString());
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(field.text(), QStringLiteral("abc"));
    }

    void colours_data()
    {
        QTest::addColumn<QList<double>>("components");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("white at 80%")
            << QList<double>{255, 255, 255, 0.8} << QColor::fromRgbF(1, 1, 1, 0.8f);
        QTest::newRow("start scan green")
            << QList<double>{31, 201, 126, 1.0} << QColor(31, 201, 126);
        QTest::newRow("out of range is held at the edges")
            << QList<double>{300, -5, 0, 2} << QColor(255, 0, 0);
    }
    void colours()
    {
        QFETCH(QList<double>, components);
        QFETCH(QColor, expected);
        const QColor colour =
            BRColorHelper::color(components[0], components[1], components[2], components[3]);
        QVERIFY(colour.isValid());
        QCOMPARE(colour.rgba(), expected.rgba());
    }
};

QTEST_MAIN(tst_Controls)
#include "tst_controls.moc"
