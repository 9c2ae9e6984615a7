#pragma once

#include <QPushButton>

// The rename screen's action button: rounded corners.
class BRRenameViewRenameButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRRenameViewRenameButton(QWidget *parent = nullptr);
};
