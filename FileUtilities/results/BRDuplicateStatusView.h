#pragma once

#include "BRImageBackgroundView.h"

// The ground of the status screen of a scan without results.
class BRDuplicateStatusView : public BRImageBackgroundView
{
    Q_OBJECT

public:
    explicit BRDuplicateStatusView(QWidget *parent = nullptr);
};
