#include "BRRenameCompleteViewDoneButton.h"

BRRenameCompleteViewDoneButton::BRRenameCompleteViewDoneButton(QWidget *parent)
    : QPushButton(parent)
{
    setStyleSheet(
        QStringLiteral("QPushButton { color: white; background: rgba(0, 0, 0, 0.6); border: none;"
                       " border-radius: 5px; padding: 8px 18px; }"));
}
