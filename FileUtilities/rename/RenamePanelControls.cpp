#include "RenamePanelControls.h"

#include "BRRenameDisableVibrancePopUpButton.h"
#include "BRRenameRoundedTextField.h"
#include "Look.h"
#include "RenameRecord.h"

#include <QHBoxLayout>
#include <QLabel>

BRRenameDisableVibrancePopUpButton *RenamePanelControls::makeRuleSwitch(const QString &objectName,
                                                                        const QString &ownRule,
                                                                        const QString &otherRule,
                                                                        QWidget *parent)
{
    auto *ruleSwitch = new BRRenameDisableVibrancePopUpButton(parent);
    ruleSwitch->setObjectName(objectName);
    ruleSwitch->setAccessibleName(QStringLiteral("Rule"));
    ruleSwitch->addItem(ownRule);
    ruleSwitch->addItem(otherRule);
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
    where->setAccessibleName(QStringLiteral("Where"));
    where->addItem(RenameTexts::afterName);
    where->addItem(RenameTexts::beforeName);
    where->setFont(Look::font(15));
    where->setMinimumHeight(fieldHeight);
    where->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    where->setCursor(Qt::PointingHandCursor);
    return where;
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
