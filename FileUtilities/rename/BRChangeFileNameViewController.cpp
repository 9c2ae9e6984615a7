#include "BRChangeFileNameViewController.h"

#include "BRRenameDisableVibrancePopUpButton.h"
#include "BRRenameRoundedTextField.h"
#include "BRRenameTabViewController.h"
#include "BRRenameViewDelegate.h"
#include "RenameNotificationCenter.h"
#include "RenamePanelControls.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QRegularExpressionValidator>

BRChangeFileNameViewController::BRChangeFileNameViewController(RenameNotificationCenter *center,
                                                               QWidget *parent)
    : QWidget(parent),
      m_formatOptionButton(RenamePanelControls::makeRuleSwitch(QStringLiteral("formatOptionButton"),
                                                               RenameRule::ChangeFullNames, this)),
      m_newNameTextField(RenamePanelControls::makeTextField(
          QStringLiteral("newNameTextField"),
          QCoreApplication::translate("BRChangeFileNameViewController", "Enter New Name"), this)),
      m_numberTextField(RenamePanelControls::makeTextField(QStringLiteral("numberTextField"),
                                                           QStringLiteral("1"), this)),
      m_whereOptionButton(RenamePanelControls::makeWherePopup(this))
{
    setObjectName(QStringLiteral("BRChangeFileNameViewController"));
    m_numberTextField->setAccessibleName(
        QCoreApplication::translate("BRChangeFileNameViewController", "Start Number"));
    m_numberTextField->setText(QStringLiteral("1"));
    m_numberTextField->setFixedWidth(84);
    // Digits, with a sign for a count that starts below zero; the rule reads the rest.
    m_numberTextField->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("-?[0-9]*")), m_numberTextField));
    m_whereOptionButton->setToolTip(
        QCoreApplication::translate("BRChangeFileNameViewController", "Where the number goes"));
    setAttributes();

    QBoxLayout *layout = RenamePanelControls::makePanelLayout(this);
    layout->addWidget(m_formatOptionButton);
    layout->addWidget(m_newNameTextField, 1);
    layout->addSpacing(4);
    layout->addWidget(RenamePanelControls::makeCaption(
        QCoreApplication::translate("BRChangeFileNameViewController", "starting at"), this));
    layout->addWidget(m_numberTextField);
    layout->addWidget(m_whereOptionButton);

    // Any change of the text, not only a key typed: dictation and assistive tools set the
    // text as a whole. The panel's own resets are made with the signals blocked.
    connect(m_newNameTextField, &QLineEdit::textChanged, this,
            [this] { controlTextDidChange(m_newNameTextField); });
    connect(m_numberTextField, &QLineEdit::textChanged, this,
            [this] { controlTextDidChange(m_numberTextField); });
    connect(m_whereOptionButton, &QComboBox::activated, this,
            &BRChangeFileNameViewController::whereOptionAction);
    connect(m_formatOptionButton, &QComboBox::activated, this,
            &BRChangeFileNameViewController::formatOptionAction);
    if (center)
        connect(center, &RenameNotificationCenter::clearText, this,
                &BRChangeFileNameViewController::clearText);
}

void BRChangeFileNameViewController::setAttributes()
{
    RenamePanelControls::applyFieldAttributes(m_newNameTextField);
    RenamePanelControls::applyFieldAttributes(m_numberTextField);
    RenamePanelControls::applyRuleSwitchAttributes(m_formatOptionButton);
}

void BRChangeFileNameViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_newNameTextField->setFocus();
}

void BRChangeFileNameViewController::controlTextDidChange(QLineEdit *field)
{
    // Too long a text takes back the keystroke, always in the rule text: the number
    // field's own overlong text stays and simply fails to read as a number.
    if (field && field->text().size() > TEXT_FIELD_LIMIT) {
        const QSignalBlocker quiet(m_newNameTextField);
        m_newNameTextField->setText(m_newNameText);
    }
    callDelegate();
}

void BRChangeFileNameViewController::whereOptionAction()
{
    callDelegate();
}

void BRChangeFileNameViewController::callDelegate()
{
    m_newNameText = m_newNameTextField->text();
    m_numberText = m_numberTextField->text();
    const auto where = RenamePanelControls::chosenPlacement(m_whereOptionButton);
    if (m_delegate && where)
        m_delegate->renameUsingOption(m_newNameText, m_numberText, *where);
}

void BRChangeFileNameViewController::formatOptionAction()
{
    auto *tabs = qobject_cast<BRRenameTabViewController *>(parentWidget());
    const auto chosen = RenamePanelControls::chosenRule(m_formatOptionButton);
    if (!tabs || !chosen || *chosen == RenameRule::ChangeFullNames)
        return;
    {
        const QSignalBlocker quiet(m_newNameTextField);
        m_newNameTextField->setText(QString());
    }
    tabs->showRule(*chosen);
    // Ready for the way back.
    m_formatOptionButton->setCurrentIndex(0);
    if (m_delegate)
        m_delegate->clearDestinationFileNames();
}

void BRChangeFileNameViewController::clearText()
{
    const QSignalBlocker quietName(m_newNameTextField);
    const QSignalBlocker quietNumber(m_numberTextField);
    m_newNameTextField->setText(QString());
    m_numberTextField->setText(QStringLiteral("1"));
}
