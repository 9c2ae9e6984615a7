#include "BRIntroView.h"

BRIntroView::BRIntroView(QWidget *parent)
    : BRImageBackgroundView(QStringLiteral("intro_bg"), Tone::Dark, parent)
{}
