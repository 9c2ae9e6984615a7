#include "BRRenameDisableVibrancePopUpButton.h"

BRRenameDisableVibrancePopUpButton::BRRenameDisableVibrancePopUpButton(QWidget *parent)
    : QComboBox(parent)
{}
