#pragma once

#include "BRImageBackgroundView.h"

// The ground of the scan start screen.
class BRDuplicateScanStartView : public BRImageBackgroundView
{
    Q_OBJECT

public:
    explicit BRDuplicateScanStartView(QWidget *parent = nullptr);
};
