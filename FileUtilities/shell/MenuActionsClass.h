#pragma once

#include <QMenu>

class AppDelegate;
class Workspace;

// The application menu: About, Contact Support, More Apps from Brackenhale, Terms of Use,
// Send Feedback and Quit. Send Feedback is this menu's own item, and is offered only
// while no scan runs and no results are held.
class MenuActionsClass : public QMenu
{
    Q_OBJECT

public:
    MenuActionsClass(AppDelegate &appDelegate, Workspace &workspace, QWidget *parent = nullptr);

    bool validateMenuItem(const QAction *item) const;
    QAction *feedbackAction() const { return m_feedback; }

Q_SIGNALS:
    void aboutAction();
    void quitAction();

private:
    AppDelegate &m_appDelegate;
    QAction *m_feedback;
};
