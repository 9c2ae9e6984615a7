#include "RenamePanelControls.h"

#include "BRRenameDisableVibrancePopUpButton.h"
#include "BRRenameRoundedTextField.h"
#include "Look.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>

namespace {

RenameRule otherRule(RenameRule rule)
{
    switch (rule) {
    case RenameRule::ChangeFullNames:
        return RenameRule::AddText;
    case RenameRule::AddText:
        return RenameRule::ChangeFullNames;
    }
    Q_UNREACHABLE();
    return rule;
}

} // namespace

BRRenameDisableVibrancePopUpButton *
RenamePanelControls::makeRuleSwitch(const QString &objectName, RenameRule ownRule, QWidget *parent)
{
    auto *ruleSwitch = new BRRenameDisableVibrancePopUpButton(parent);
    ruleSwitch->setObjectName(objectName);
    ruleSwitch->setAccessibleName(QCoreApplication::translate("RenamePanelControls", "Rule"));
    ruleSwitch->addItem(ruleTitle(ownRule), QVariant::fromValue(ownRule));
    const RenameRule other = otherRule(ownRule);
    ruleSwitch->addItem(switchTitle(other), QVariant::fromValue(other));
    ruleSwitch->setFont(Look::font(15));
    ruleSwitch->setMinimumHeight(fieldHeight);
    ruleSwitch->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    ruleSwitch->setCursor(Qt::PointingHandCursor);
    return ruleSwitch;
}

BRRenameDisableVibrancePopUpButton *RenamePanelControls::makeWherePopup(QWidget *parent)
{
    auto *where = new BRRenameDisableVibrancePopUpButton(parent);
    where->setObjectName(QStringLiteral("whereOptionButton"));
    where->setAccessibleName(QCoreApplication::translate("RenamePanelControls", "Where"));
    for (const NamePlacement placement : {NamePlacement::AfterName, NamePlacement::BeforeName})
        where->addItem(placementTitle(placement), QVariant::fromValue(placement));
    where->setFont(Look::font(15));
    where->setMinimumHeight(fieldHeight);
    where->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    where->setCursor(Qt::PointingHandCursor);
    return where;
}

std::optional<RenameRule> RenamePanelControls::chosenRule(const QComboBox *ruleSwitch)
{
    const QVariant chosen = ruleSwitch->currentData();
    if (chosen.metaType() != QMetaType::fromType<RenameRule>())
        return std::nullopt;
    return chosen.value<RenameRule>();
}

std::optional<NamePlacement> RenamePanelControls::chosenPlacement(const QComboBox *where)
{
    const QVariant chosen = where->currentData();
    if (chosen.metaType() != QMetaType::fromType<NamePlacement>())
        return std::nullopt;
    return chosen.value<NamePlacement>();
}

QString RenamePanelControls::ruleTitle(RenameRule rule)
{
    switch (rule) {
    case RenameRule::ChangeFullNames:
        return QCoreApplication::translate("RenamePanelControls", "Change full file names to");
    case RenameRule::AddText:
        return QCoreApplication::translate("RenamePanelControls", "Add text to existing names");
    }
    Q_UNREACHABLE();
    return {};
}

QString RenamePanelControls::switchTitle(RenameRule rule)
{
    switch (rule) {
    case RenameRule::ChangeFullNames:
        return QCoreApplication::translate("RenamePanelControls", "Change full name");
    case RenameRule::AddText:
        return QCoreApplication::translate("RenamePanelControls", "Add text to name");
    }
    Q_UNREACHABLE();
    return {};
}

QString RenamePanelControls::placementTitle(NamePlacement where)
{
    switch (where) {
    case NamePlacement::AfterName:
        return QCoreApplication::translate("RenamePanelControls", "After name");
    case NamePlacement::BeforeName:
        return QCoreApplication::translate("RenamePanelControls", "Before name");
    }
    Q_UNREACHABLE();
    return {};
}

BRRenameRoundedTextField *RenamePanelControls::makeTextField(const QString &objectName,
                                                             const QString &placeholder,
                                                             QWidget *parent)
{
    auto *field = new BRRenameRoundedTextField(parent);
    field->setObjectName(objectName);
    field->setAccessibleName(placeholder);
    field->setPlaceholderText(placeholder);
    field->setFixedHeight(fieldHeight);
    field->setAttribute(Qt::WA_MacShowFocusRect, false);
    return field;
}

QLabel *RenamePanelControls::makeCaption(const QString &text, QWidget *parent)
{
    return Look::label(parent, 15, QFont::Normal, Look::Color::SecondaryText, text);
}

QBoxLayout *RenamePanelControls::makePanelLayout(QWidget *panel)
{
    auto *layout = new QHBoxLayout(panel);
    layout->setContentsMargins(20, 14, 20, 14);
    layout->setSpacing(10);
    return layout;
}

void RenamePanelControls::applyFieldAttributes(QLineEdit *field)
{
    // The placeholder takes the field's font; the typed text reads at the same size.
    field->setFont(Look::font(18));
    field->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Look::setTextColor(field, Look::Color::Placeholder, QPalette::PlaceholderText);
}

void RenamePanelControls::applyRuleSwitchAttributes(QComboBox *ruleSwitch)
{
    if (ruleSwitch->count() < 2)
        return;
    ruleSwitch->setItemData(1, Look::font(15), Qt::FontRole);
    ruleSwitch->setItemData(1, Look::color(Look::Color::PrimaryText), Qt::ForegroundRole);
}
