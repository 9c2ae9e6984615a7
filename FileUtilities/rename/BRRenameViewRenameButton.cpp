#include "BRRenameViewRenameButton.h"

#include "LookStyleSheets.h"

BRRenameViewRenameButton::BRRenameViewRenameButton(QWidget *parent) : QPushButton(parent)
{
    setStyleSheet(Look::StyleSheet::filledButton(Look::Color::Accent));
}
