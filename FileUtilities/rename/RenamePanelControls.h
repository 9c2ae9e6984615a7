#pragma once

#include "NamePlacement.h"
#include "RenameRule.h"

#include <QString>

#include <optional>

class BRRenameDisableVibrancePopUpButton;
class BRRenameRoundedTextField;
class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

// The controls that the two rule panels share, made and dressed alike, so that switching
// from one panel to the other changes only what differs. The rules and placements are
// words only here: each pop-up item carries its value, and the panels send the value.
class RenamePanelControls
{
public:
    // The rule switch: the panel's own rule first, then the one it switches to.
    static BRRenameDisableVibrancePopUpButton *makeRuleSwitch(const QString &objectName,
                                                              RenameRule ownRule, QWidget *parent);
    // "After name" and "Before name".
    static BRRenameDisableVibrancePopUpButton *makeWherePopup(QWidget *parent);
    // What the pop-up shows as chosen; nothing while it shows nothing.
    static std::optional<RenameRule> chosenRule(const QComboBox *ruleSwitch);
    static std::optional<NamePlacement> chosenPlacement(const QComboBox *where);

    // The titles the user reads. A panel names its own rule in full and the other one
    // shortly, as the choice that leads there.
    static QString ruleTitle(RenameRule rule);
    static QString switchTitle(RenameRule rule);
    static QString placementTitle(NamePlacement where);
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
