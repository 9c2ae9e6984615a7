#include "BRDuplicateFilePreviewTableCustomClipView.h"

BRDuplicateFilePreviewTableCustomClipView::BRDuplicateFilePreviewTableCustomClipView(
    QWidget *parent)
    : QWidget(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Qt::transparent);
    setPalette(palette);
    setAutoFillBackground(true);
}
