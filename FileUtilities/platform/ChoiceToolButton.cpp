#include "ChoiceToolButton.h"

#include "ChoiceAccessible.h"

#include <QStyleOptionToolButton>

ChoiceToolButton::ChoiceToolButton(QWidget *parent) : QToolButton(parent)
{
    setAutoRaise(true);
    setCheckable(true);
    ChoiceAccessible::install();
}

void ChoiceToolButton::initStyleOption(QStyleOptionToolButton *option) const
{
    QToolButton::initStyleOption(option);
    option->state &= ~QStyle::State_On;
    // What an unchecked button would carry: the hover panel then looks the same for both.
    if (!isDown())
        option->state |= QStyle::State_Raised;
}
