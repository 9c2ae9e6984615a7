#pragma once

#include <QString>

class BRRenameDisableVibrancePopUpButton;
class BRRenameRoundedTextField;
class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

// The controls that the two rule panels share, made and dressed alike, so that switching
// from one panel to the other changes only what differs.
class RenamePanelControls
{
public:
    // The rule switch: the panel's own rule first, then the one it switches to.
    static BRRenameDisableVibrancePopUpButton *makeRuleSwitch(const QString &objectName,
                                                              const QString &ownRule,
                                                              const QString &otherRule,
                                                              QWidget *parent);
    // "After name" and "Before name": their titles go to the rules as they stand.
    static BRRenameDisableVibrancePopUpButton *makeWherePopup(QWidget *parent);
    static BRRenameRoundedTextField *makeTextField(const QString &objectName,
                                                   const QString &placeholder, QWidget *parent);
    static QLabel *makeCaption(const QString &text, QWidget *parent);
    // The row the controls stand in; the panel's own layout.
    static QBoxLayout *makePanelLayout(QWidget *panel);

    // Placeholders left-aligned at 18 pixels in the placeholder grey; the switch's other
    // rule at 15 pixels in the primary text colour.
    static void applyFieldAttributes(QLineEdit *field);
    static void applyRuleSwitchAttributes(QComboBox *ruleSwitch);

    static constexpr int fieldHeight = 36;
};
