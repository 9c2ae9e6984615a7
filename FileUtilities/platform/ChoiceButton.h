#pragma once

#include <QPushButton>

// A flat text button that stands for one of several choices (a tool, a filter). It is
// checkable, so assistive tools can say which choice is on, but it keeps its flat look
// when checked: the screens show the choice by colour, and a sunken frame would be a
// second, different sign of it.
class ChoiceButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ChoiceButton(QWidget *parent = nullptr);

protected:
    void initStyleOption(QStyleOptionButton *option) const override;
};
