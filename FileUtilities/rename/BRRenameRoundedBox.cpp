#include "BRRenameRoundedBox.h"

BRRenameRoundedBox::BRRenameRoundedBox(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("BRRenameRoundedBox"));
    setStyleSheet(
        QStringLiteral("#BRRenameRoundedBox { border: 1px solid rgba(128, 128, 128, 0.35);"
                       " border-radius: 5px; }"));
}
