#pragma once

#include "BRImageBackgroundView.h"

// The intro's ground: the dark intro image.
class BRIntroView : public BRImageBackgroundView
{
    Q_OBJECT

public:
    explicit BRIntroView(QWidget *parent = nullptr);
};
