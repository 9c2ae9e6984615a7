#pragma once

#include <QPushButton>

// Done on the rename completion view: white on translucent black, rounded.
class BRRenameCompleteViewDoneButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRRenameCompleteViewDoneButton(QWidget *parent = nullptr);
};
