#include "BRRenameViewRenameButton.h"

BRRenameViewRenameButton::BRRenameViewRenameButton(QWidget *parent) : QPushButton(parent)
{
    setStyleSheet(QStringLiteral(
        "QPushButton { color: white; background: rgba(31, 201, 126, 1.0); border: none;"
        " border-radius: 5px; padding: 8px 18px; }"));
}
