#include "BRMainViewTabButton.h"

BRMainViewTabButton::BRMainViewTabButton(QWidget *parent) : ChoiceButton(parent) {}
