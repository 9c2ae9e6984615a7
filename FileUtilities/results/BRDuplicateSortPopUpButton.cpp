#include "BRDuplicateSortPopUpButton.h"

BRDuplicateSortPopUpButton::BRDuplicateSortPopUpButton(QWidget *parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

void BRDuplicateSortPopUpButton::showPopup()
{
    Q_EMIT willPopUp();
    QComboBox::showPopup();
}
