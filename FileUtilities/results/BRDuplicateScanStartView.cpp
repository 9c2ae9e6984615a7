#include "BRDuplicateScanStartView.h"

BRDuplicateScanStartView::BRDuplicateScanStartView(QWidget *parent)
    : BRImageBackgroundView(QStringLiteral("bg"), Tone::Light, parent)
{}
