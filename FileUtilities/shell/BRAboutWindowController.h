#pragma once

#include <QDialog>

class Workspace;

// About runs modally: the main window takes no input while it is open, and each opening
// builds it anew.
class BRAboutWindowController : public QDialog
{
    Q_OBJECT

public:
    explicit BRAboutWindowController(Workspace &workspace, QWidget *parent = nullptr);
};
