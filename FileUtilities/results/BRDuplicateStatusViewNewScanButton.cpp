#include "BRDuplicateStatusViewNewScanButton.h"

#include "LookStyleSheets.h"

BRDuplicateStatusViewNewScanButton::BRDuplicateStatusViewNewScanButton(QWidget *parent)
    : QPushButton(parent)
{
    setStyleSheet(Look::StyleSheet::filledButton(Look::Color::DarkButtonGround));
}
