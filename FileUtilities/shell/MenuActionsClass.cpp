#include "MenuActionsClass.h"

#include "AppDelegate.h"
#include "BRObjectClass.h"
#include <QCoreApplication>

MenuActionsClass::MenuActionsClass(AppDelegate &appDelegate, Workspace &workspace, QWidget *parent)
    : QMenu(QStringLiteral("&Quillmere"), parent), m_appDelegate(appDelegate)
{
    setObjectName(QStringLiteral("MenuActionsClass"));
    connect(addAction(QCoreApplication::translate("MenuActionsClass", "&About Quillmere")),
            &QAction::triggered, this, &MenuActionsClass::aboutAction);
    addSeparator();
    connect(addAction(QCoreApplication::translate("MenuActionsClass", "&Contact Support")),
            &QAction::triggered, this, [&workspace] { BRObjectClass::contactSupport(workspace); });
    connect(
        addAction(QCoreApplication::translate("MenuActionsClass", "&More Apps from Brackenhale")),
        &QAction::triggered, this, [&workspace] { BRObjectClass::openWebsite(workspace); });
    connect(addAction(QCoreApplication::translate("MenuActionsClass", "&Terms of Use")),
            &QAction::triggered, this, [&workspace] { BRObjectClass::openTermsOfUse(workspace); });
    m_feedback = addAction(QCoreApplication::translate("MenuActionsClass", "Send &Feedback…"));
    connect(m_feedback, &QAction::triggered, this,
            [&workspace] { BRObjectClass::contactSupport(workspace); });
    addSeparator();
    QAction *quit = addAction(QCoreApplication::translate("MenuActionsClass", "&Quit Quillmere"));
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
