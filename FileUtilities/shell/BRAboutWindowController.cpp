#include "BRAboutWindowController.h"

#include "BRAboutViewController.h"

#include <QVBoxLayout>

BRAboutWindowController::BRAboutWindowController(Workspace &workspace, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("BRAboutWindowController"));
    setWindowTitle(QStringLiteral("About Quillmere"));
    setModal(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new BRAboutViewController(workspace, this));
}
