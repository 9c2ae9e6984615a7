#pragma once

#include "ChoiceButton.h"

// The text half of a main view tab: the title alone, no button frame. Checked while its
// tool is shown.
class BRMainViewTabButton : public ChoiceButton
{
    Q_OBJECT

public:
    explicit BRMainViewTabButton(QWidget *parent = nullptr);
};
