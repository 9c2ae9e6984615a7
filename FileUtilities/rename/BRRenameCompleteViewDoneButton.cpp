#include "BRRenameCompleteViewDoneButton.h"

#include "LookStyleSheets.h"

BRRenameCompleteViewDoneButton::BRRenameCompleteViewDoneButton(QWidget *parent)
    : QPushButton(parent)
{
    setStyleSheet(Look::StyleSheet::filledButton(Look::Color::DarkButtonGround));
}
