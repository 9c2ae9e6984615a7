#include "BRDuplicateStatusView.h"

BRDuplicateStatusView::BRDuplicateStatusView(QWidget *parent)
    : BRImageBackgroundView(QStringLiteral("bg"), Tone::Light, parent)
{}
