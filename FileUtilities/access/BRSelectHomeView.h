#pragma once

#include "BRImageBackgroundView.h"

// The home folder screen's ground: the dark home image.
class BRSelectHomeView : public BRImageBackgroundView
{
    Q_OBJECT

public:
    explicit BRSelectHomeView(QWidget *parent = nullptr);
};
