#include "BRMainViewTabButton.h"

BRMainViewTabButton::BRMainViewTabButton(QWidget *parent) : QPushButton(parent)
{
    setFlat(true);
}
