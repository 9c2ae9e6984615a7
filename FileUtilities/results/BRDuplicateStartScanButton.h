#pragma once

#include <QPushButton>

// Start Scan: white on green, rounded.
class BRDuplicateStartScanButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRDuplicateStartScanButton(QWidget *parent = nullptr);
};
