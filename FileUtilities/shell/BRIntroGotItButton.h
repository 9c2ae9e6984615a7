#pragma once

#include <QPushButton>

// The intro's one button.
class BRIntroGotItButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRIntroGotItButton(QWidget *parent = nullptr);
};
