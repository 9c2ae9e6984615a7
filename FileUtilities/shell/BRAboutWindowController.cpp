#include "BRAboutWindowController.h"

#include "BRAboutViewController.h"

#include <QCoreApplication>
#include <QVBoxLayout>

BRAboutWindowController::BRAboutWindowController(Workspace &workspace, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("BRAboutWindowController"));
    setWindowTitle(QCoreApplication::translate("BRAboutWindowController", "About Quillmere"));
    setModal(true);
    // Only the close button: About neither grows nor hides in the dock.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    setFixedSize(420, 340);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new BRAboutViewController(workspace, this));
}
