#pragma once

#include "BRSelectHomeView.h"

#include <QString>

class OpenPanel;
class QPushButton;
class QSettings;

// The screen that asks, once, for the home folder the program may work in: an open panel
// that starts at the real home directory and lets only folders at or below it be chosen.
// A choice is kept as a bookmark; when access to it holds, the screen moves on.
class BRSelectHomeFolderViewController : public BRSelectHomeView
{
    Q_OBJECT

public:
    // `settings` receives the bookmark; null means the program's own settings.
    BRSelectHomeFolderViewController(OpenPanel &panel, QSettings *settings,
                                     QWidget *parent = nullptr);

    QPushButton *selectHomeFolderButton() const { return m_selectHomeFolderButton; }

    // A plain string-prefix test, as users expect of "inside my home": it also admits a
    // sibling whose name extends the home's (/home/al2 for /home/al).
    static bool panelShouldEnablePath(const QString &path, const QString &home);

public Q_SLOTS:
    void selectHomeFolderAction();

Q_SIGNALS:
    // The home folder is granted: the window goes on to the main view.
    void mainSegue(BRSelectHomeFolderViewController *sender);

private:
    OpenPanel &m_panel;
    QSettings *m_settings;
    QPushButton *m_selectHomeFolderButton;
};
