#pragma once

#include <QPushButton>

// New Scan on the status screen: white on translucent black, rounded.
class BRDuplicateStatusViewNewScanButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BRDuplicateStatusViewNewScanButton(QWidget *parent = nullptr);
};
