#include "ChoiceButton.h"

#include "ChoiceAccessible.h"

#include <QStyleOptionButton>

ChoiceButton::ChoiceButton(QWidget *parent) : QPushButton(parent)
{
    setFlat(true);
    setCheckable(true);
    ChoiceAccessible::install();
}

void ChoiceButton::initStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    option->state &= ~QStyle::State_On;
}
