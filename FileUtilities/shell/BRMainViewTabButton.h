#pragma once

#include <QPushButton>

// The text half of a main view tab: the title alone, no button frame.
class BRMainViewTabButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRMainViewTabButton(QWidget *parent = nullptr);
};
