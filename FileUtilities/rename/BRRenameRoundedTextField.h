#pragma once

#include "CustomTextField.h"

// A text field of the rename panels: a thin grey border with rounded corners.
class BRRenameRoundedTextField : public CustomTextField
{
    Q_OBJECT

public:
    explicit BRRenameRoundedTextField(QWidget *parent = nullptr);
};
