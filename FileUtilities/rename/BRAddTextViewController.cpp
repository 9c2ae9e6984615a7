#include "BRAddTextViewController.h"

#include "BRRenameDisableVibrancePopUpButton.h"
#include "BRRenameRoundedTextField.h"
#include "BRRenameTabViewController.h"
#include "BRRenameViewDelegate.h"
#include "RenameNotificationCenter.h"
#include "RenamePanelControls.h"

#include <QBoxLayout>
#include <QCoreApplication>

BRAddTextViewController::BRAddTextViewController(RenameNotificationCenter *center, QWidget *parent)
    : QWidget(parent), m_formatOption(RenamePanelControls::makeRuleSwitch(
                           QStringLiteral("formatOption"), RenameRule::AddText, this)),
      m_addTextField(RenamePanelControls::makeTextField(
          QStringLiteral("addTextField"),
          QCoreApplication::translate("BRAddTextViewController", "Add Text"), this)),
      m_whereOptionButton(RenamePanelControls::makeWherePopup(this))
{
    setObjectName(QStringLiteral("BRAddTextViewController"));
    m_whereOptionButton->setToolTip(
        QCoreApplication::translate("BRAddTextViewController", "Where the text goes"));
    setAttributes();

    QBoxLayout *layout = RenamePanelControls::makePanelLayout(this);
    layout->addWidget(m_formatOption);
    layout->addWidget(m_addTextField, 1);
    layout->addWidget(m_whereOptionButton);

    // Any change of the text, not only a key typed: dictation and assistive tools set the
    // text as a whole. The panel's own resets are made with the signals blocked.
    connect(m_addTextField, &QLineEdit::textChanged, this,
            [this] { controlTextDidChange(m_addTextField); });
    connect(m_whereOptionButton, &QComboBox::activated, this,
            &BRAddTextViewController::whereOptionAction);
    connect(m_formatOption, &QComboBox::activated, this,
            &BRAddTextViewController::formatOptionAction);
    if (center)
        connect(center, &RenameNotificationCenter::clearText, this,
                &BRAddTextViewController::clearText);
}

void BRAddTextViewController::setAttributes()
{
    RenamePanelControls::applyFieldAttributes(m_addTextField);
    RenamePanelControls::applyRuleSwitchAttributes(m_formatOption);
}

void BRAddTextViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_addTextField->setFocus();
}

void BRAddTextViewController::controlTextDidChange(QLineEdit *field)
{
    // Too long a text takes back the keystroke: the field returns to what was last sent.
    if (field && field->text().size() > TEXT_FIELD_LIMIT) {
        const QSignalBlocker quiet(m_addTextField);
        m_addTextField->setText(m_addText);
    }
    callDelegate();
}

void BRAddTextViewController::whereOptionAction()
{
    callDelegate();
}

void BRAddTextViewController::callDelegate()
{
    m_addText = m_addTextField->text();
    const auto where = RenamePanelControls::chosenPlacement(m_whereOptionButton);
    if (m_delegate && where)
        m_delegate->renameUsingAddTextOption(m_addText, *where);
}

void BRAddTextViewController::formatOptionAction()
{
    auto *tabs = qobject_cast<BRRenameTabViewController *>(parentWidget());
    const auto chosen = RenamePanelControls::chosenRule(m_formatOption);
    if (!tabs || !chosen || *chosen == RenameRule::AddText)
        return;
    {
        const QSignalBlocker quiet(m_addTextField);
        m_addTextField->setText(QString());
    }
    tabs->showRule(*chosen);
    m_formatOption->setCurrentIndex(0);
    if (m_delegate)
        m_delegate->clearDestinationFileNames();
}

void BRAddTextViewController::clearText()
{
    const QSignalBlocker quiet(m_addTextField);
    m_addTextField->setText(QString());
}
