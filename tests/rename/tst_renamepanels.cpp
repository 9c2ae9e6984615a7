// The rule panels: what each keystroke and choice sends to the rename screen, the length
// limit, the switch between the two rules, and the clearing of the fields.

#include "BRAddTextViewController.h"
#include "BRChangeFileNameViewController.h"
#include "BRRenameTabViewController.h"
#include "RecordingRenameDelegate.h"
#include "RenameNotificationCenter.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

class TestRenamePanels : public QObject
{
    Q_OBJECT

private:
    // A fresh screen's panels, shown, with both reporting to `delegate`.
    struct Panels
    {
        RenameNotificationCenter center;
        BRRenameTabViewController tabs{&center};
        RecordingRenameDelegate delegate;

        Panels()
        {
            tabs.changeFileNameViewController()->setDelegate(&delegate);
            tabs.addTextViewController()->setDelegate(&delegate);
            tabs.show();
        }
        BRChangeFileNameViewController *change() { return tabs.changeFileNameViewController(); }
        BRAddTextViewController *add() { return tabs.addTextViewController(); }
    };

private Q_SLOTS:
    void startsWithItsOwnRuleAndNumberOne();
    void thirtyFirstCharacterIsTakenBack();
    void overlongPasteReturnsToLastSentText();
    void overlongNumberStaysButRuleTextIsPutBack();
    void numberWithEmptyRuleTextSendsTheEmptyText();
    void whereChoiceSendsAtOnce();
    void switchingRulesClearsTheTextLeftAndKeepsTheNumber();
    void ruleSwitchDoesNothingOutsideTheTabs();
    void clearTextEmptiesFieldsWithoutSending();
    void textSetWithoutKeysIsSent();
    void shownPanelTakesTheKeyboard();
};

void TestRenamePanels::startsWithItsOwnRuleAndNumberOne()
{
    Panels panels;
    QCOMPARE(panels.tabs.selectedIndex(), 0);
    QCOMPARE(panels.tabs.panelAt(0), panels.change());
    QCOMPARE(panels.tabs.panelAt(1), panels.add());
    QComboBox *changeSwitch = panels.change()->formatOptionButton();
    QCOMPARE(changeSwitch->currentIndex(), 0);
    QCOMPARE(changeSwitch->itemText(0), u"Change full file names to"_s);
    QCOMPARE(changeSwitch->itemText(1), u"Add text to name"_s);
    QCOMPARE(panels.add()->formatOption()->itemText(0), u"Add text to existing names"_s);
    QCOMPARE(panels.add()->formatOption()->itemText(1), u"Change full name"_s);
    QCOMPARE(panels.change()->whereOptionButton()->currentText(), u"After name"_s);
    QCOMPARE(panels.change()->whereOptionButton()->itemText(1), u"Before name"_s);
    QCOMPARE(panels.change()->newNameTextField()->placeholderText(), u"Enter New Name"_s);
    QCOMPARE(panels.add()->addTextField()->placeholderText(), u"Add Text"_s);
    QCOMPARE(panels.change()->numberTextField()->text(), u"1"_s);
    // Nothing was sent yet.
    QCOMPARE(panels.change()->numberText(), QString());
    QVERIFY(panels.delegate.calls.isEmpty());
}

void TestRenamePanels::thirtyFirstCharacterIsTakenBack()
{
    Panels panels;
    QLineEdit *field = panels.change()->newNameTextField();
    const QString thirty(30, u'a');
    QTest::keyClicks(field, thirty);
    QCOMPARE(panels.delegate.calls.size(), 30);
    QCOMPARE(panels.delegate.calls.last(), u"renameUsingOption(%1|1|After name)"_s.arg(thirty));

    QTest::keyClicks(field, u"b"_s);
    QCOMPARE(field->text(), thirty);
    QCOMPARE(panels.change()->newNameText(), thirty);
    // The keystroke still reaches the screen, with the names it already has.
    QCOMPARE(panels.delegate.calls.size(), 31);
    QCOMPARE(panels.delegate.calls.last(), panels.delegate.calls.at(29));

    // The add-text panel holds to the same limit.
    QLineEdit *addField = panels.add()->addTextField();
    QTest::keyClicks(addField, QString(31, u'x'));
    QCOMPARE(addField->text(), QString(30, u'x'));
    QCOMPARE(panels.add()->addText(), QString(30, u'x'));
}

void TestRenamePanels::overlongPasteReturnsToLastSentText()
{
    Panels panels;
    QLineEdit *field = panels.change()->newNameTextField();
    QTest::keyClicks(field, u"Trip"_s);
    QApplication::clipboard()->setText(QString(40, u'z'));
    if (QApplication::clipboard()->text() != QString(40, u'z'))
        QSKIP("This platform has no clipboard");
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(field->text(), u"Trip"_s);
    QCOMPARE(panels.delegate.calls.last(), u"renameUsingOption(Trip|1|After name)"_s);
}

void TestRenamePanels::overlongNumberStaysButRuleTextIsPutBack()
{
    Panels panels;
    QTest::keyClicks(panels.change()->newNameTextField(), u"Trip"_s);
    // Only the rule text is ever put back; a number too long to read goes to the screen
    // as it is, which leaves the names as they were.
    QLineEdit *number = panels.change()->numberTextField();
    number->clear();
    QTest::keyClicks(number, QString(31, u'7'));
    QCOMPARE(number->text(), QString(31, u'7'));
    QCOMPARE(panels.change()->newNameTextField()->text(), u"Trip"_s);
    QCOMPARE(panels.delegate.calls.last(),
             u"renameUsingOption(Trip|%1|After name)"_s.arg(QString(31, u'7')));
}

void TestRenamePanels::numberWithEmptyRuleTextSendsTheEmptyText()
{
    Panels panels;
    QLineEdit *number = panels.change()->numberTextField();
    number->selectAll();
    QTest::keyClicks(number, u"5"_s);
    QCOMPARE(panels.delegate.calls, QStringList{u"renameUsingOption(|5|After name)"_s});
    QCOMPARE(panels.change()->numberText(), u"5"_s);
    // The number field takes a count and nothing else.
    QTest::keyClicks(number, u"x"_s);
    QCOMPARE(number->text(), u"5"_s);
}

void TestRenamePanels::whereChoiceSendsAtOnce()
{
    Panels panels;
    QTest::keyClicks(panels.change()->newNameTextField(), u"Trip"_s);
    panels.delegate.calls.clear();
    QTest::keyClick(panels.change()->whereOptionButton(), Qt::Key_Down);
    QCOMPARE(panels.delegate.calls, QStringList{u"renameUsingOption(Trip|1|Before name)"_s});

    panels.tabs.setSelectedIndex(1);
    QTest::keyClicks(panels.add()->addTextField(), u"-x"_s);
    panels.delegate.calls.clear();
    QTest::keyClick(panels.add()->whereOptionButton(), Qt::Key_Down);
    QCOMPARE(panels.delegate.calls, QStringList{u"renameUsingAddTextOption(-x|Before name)"_s});
}

void TestRenamePanels::switchingRulesClearsTheTextLeftAndKeepsTheNumber()
{
    Panels panels;
    QTest::keyClicks(panels.change()->newNameTextField(), u"Trip"_s);
    panels.change()->numberTextField()->selectAll();
    QTest::keyClicks(panels.change()->numberTextField(), u"7"_s);
    panels.tabs.setSelectedIndex(1);
    QTest::keyClicks(panels.add()->addTextField(), u"-x"_s);
    panels.tabs.setSelectedIndex(0);
    panels.delegate.calls.clear();

    QTest::keyClick(panels.change()->formatOptionButton(), Qt::Key_Down);
    QCOMPARE(panels.tabs.selectedIndex(), 1);
    QCOMPARE(panels.delegate.calls, QStringList{u"clearDestinationFileNames"_s});
    QCOMPARE(panels.change()->newNameTextField()->text(), QString());
    QCOMPARE(panels.change()->formatOptionButton()->currentIndex(), 0);
    // The other panel's text waits as it was; nothing runs until it changes.
    QCOMPARE(panels.add()->addTextField()->text(), u"-x"_s);

    QTest::keyClick(panels.add()->formatOption(), Qt::Key_Down);
    QCOMPARE(panels.tabs.selectedIndex(), 0);
    QCOMPARE(panels.add()->formatOption()->currentIndex(), 0);
    QCOMPARE(panels.add()->addTextField()->text(), QString());
    QCOMPARE(panels.change()->newNameTextField()->text(), QString());
    QCOMPARE(panels.change()->numberTextField()->text(), u"7"_s);
    QCOMPARE(panels.delegate.calls,
             (QStringList{u"clearDestinationFileNames"_s, u"clearDestinationFileNames"_s}));

    // Choosing the panel's own rule again switches nothing.
    QTest::keyClick(panels.change()->formatOptionButton(), Qt::Key_Up);
    QCOMPARE(panels.tabs.selectedIndex(), 0);
    QCOMPARE(panels.delegate.calls.size(), 2);
}

void TestRenamePanels::ruleSwitchDoesNothingOutsideTheTabs()
{
    RecordingRenameDelegate delegate;
    BRChangeFileNameViewController alone(nullptr);
    alone.setDelegate(&delegate);
    alone.newNameTextField()->setText(u"Trip"_s);
    const qsizetype sent = delegate.calls.size();
    alone.show();
    QTest::keyClick(alone.formatOptionButton(), Qt::Key_Down);
    QCOMPARE(alone.newNameTextField()->text(), u"Trip"_s);
    QCOMPARE(delegate.calls.size(), sent);
}

// Dictation and assistive tools set a field's text whole, without a key: the names follow.
void TestRenamePanels::textSetWithoutKeysIsSent()
{
    Panels panels;
    panels.change()->newNameTextField()->setText(u"Harbour"_s);
    QCOMPARE(panels.delegate.calls.size(), 1);
    QCOMPARE(panels.delegate.calls.last(), u"renameUsingOption(Harbour|1|After name)"_s);
    panels.change()->numberTextField()->setText(u"5"_s);
    QCOMPARE(panels.delegate.calls.last(), u"renameUsingOption(Harbour|5|After name)"_s);
    panels.tabs.setSelectedIndex(1);
    panels.add()->addTextField()->insert(u"-x"_s);
    QCOMPARE(panels.delegate.calls.last(), u"renameUsingAddTextOption(-x|After name)"_s);
}

void TestRenamePanels::clearTextEmptiesFieldsWithoutSending()
{
    Panels panels;
    QTest::keyClicks(panels.change()->newNameTextField(), u"Trip"_s);
    panels.change()->numberTextField()->selectAll();
    QTest::keyClicks(panels.change()->numberTextField(), u"12"_s);
    panels.tabs.setSelectedIndex(1);
    QTest::keyClicks(panels.add()->addTextField(), u"-x"_s);
    const qsizetype sent = panels.delegate.calls.size();

    Q_EMIT panels.center.clearText();
    QCOMPARE(panels.change()->newNameTextField()->text(), QString());
    QCOMPARE(panels.change()->numberTextField()->text(), u"1"_s);
    QCOMPARE(panels.add()->addTextField()->text(), QString());
    QCOMPARE(panels.delegate.calls.size(), sent);
    // What was last sent is the screen's business, cleared there.
    QCOMPARE(panels.change()->newNameText(), u"Trip"_s);
}

void TestRenamePanels::shownPanelTakesTheKeyboard()
{
    Panels panels;
    panels.tabs.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panels.tabs));
    QTRY_VERIFY(panels.change()->newNameTextField()->hasFocus());
    panels.tabs.setSelectedIndex(1);
    QTRY_VERIFY(panels.add()->addTextField()->hasFocus());
}

QTEST_MAIN(TestRenamePanels)
#include "tst_renamepanels.moc"
