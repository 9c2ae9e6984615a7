#include "BRSelectHomeView.h"

BRSelectHomeView::BRSelectHomeView(QWidget *parent)
    : BRImageBackgroundView(QStringLiteral("homebg"), Tone::Dark, parent)
{}
