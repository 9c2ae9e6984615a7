#include "BRRenameRoundedBox.h"

#include "LookStyleSheets.h"

BRRenameRoundedBox::BRRenameRoundedBox(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("BRRenameRoundedBox"));
    setStyleSheet(Look::StyleSheet::roundedBox(objectName()));
}
