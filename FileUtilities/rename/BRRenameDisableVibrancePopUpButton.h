#pragma once

#include <QComboBox>

// The rename screen's rule chooser; it keeps the desktop's own look.
class BRRenameDisableVibrancePopUpButton : public QComboBox
{
    Q_OBJECT

public:
    explicit BRRenameDisableVibrancePopUpButton(QWidget *parent = nullptr);
};
