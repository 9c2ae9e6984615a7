#include "BRAboutWindowController.h"

#include "BRAboutViewController.h"

#include <QCoreApplication>
#include <QVBoxLayout>

#include <algorithm>

BRAboutWindowController::BRAboutWindowController(Workspace &workspace, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("BRAboutWindowController"));
    setWindowTitle(QCoreApplication::translate("BRAboutWindowController", "About Quillmere"));
    setModal(true);
    // Only the close button: About neither grows nor hides in the dock.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new BRAboutViewController(workspace, this));
    // Wider where a translation's link texts need it, never narrower.
    setFixedSize(std::max(420, layout->sizeHint().width()), 340);
}
