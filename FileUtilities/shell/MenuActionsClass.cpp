#include "MenuActionsClass.h"

#include "AppDelegate.h"
#include "BRObjectClass.h"

MenuActionsClass::MenuActionsClass(AppDelegate &appDelegate, Workspace &workspace, QWidget *parent)
    : QMenu(QStringLiteral("&Quillmere"), parent), m_appDelegate(appDelegate)
{
    setObjectName(QStringLiteral("MenuActionsClass"));
    connect(addAction(QStringLiteral("&About Quillmere")), &QAction::triggered, this,
            &MenuActionsClass::aboutAction);
    addSeparator();
    connect(addAction(QStringLiteral("&Contact Support")), &QAction::triggered, this,
            [&workspace] { BRObjectClass::contactSupport(workspace); });
    connect(addAction(QStringLiteral("&More Apps from Brackenhale")), &QAction::triggered, this,
            [&workspace] { BRObjectClass::openWebsite(workspace); });
    connect(addAction(QStringLiteral("&Terms of Use")), &QAction::triggered, this,
            [&workspace] { BRObjectClass::openTermsOfUse(workspace); });
    m_feedback = addAction(QStringLiteral("Send &Feedback…"));
    connect(m_feedback, &QAction::triggered, this,
            [&workspace] { BRObjectClass::contactSupport(workspace); });
    addSeparator();
    QAction *quit = addAction(QStringLiteral("&Quit Quillmere"));
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, this, &MenuActionsClass::quitAction);

    connect(this, &QMenu::aboutToShow, this,
            [this] { m_feedback->setEnabled(validateMenuItem(m_feedback)); });
}

bool MenuActionsClass::validateMenuItem(const QAction *item) const
{
    if (item != m_feedback)
        return true;
    return !m_appDelegate.duplicateScanStatus && m_appDelegate.duplicateFilesCount == 0;
}
