#include "BRDuplicateStartScanButton.h"

#include "LookStyleSheets.h"

BRDuplicateStartScanButton::BRDuplicateStartScanButton(QWidget *parent) : QPushButton(parent)
{
    setStyleSheet(Look::StyleSheet::filledButton(Look::Color::Accent));
}
