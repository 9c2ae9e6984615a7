#include "BRDuplicateTableViewCustomClipView.h"

BRDuplicateTableViewCustomClipView::BRDuplicateTableViewCustomClipView(QWidget *parent)
    : QWidget(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Qt::white);
    setPalette(palette);
    setAutoFillBackground(true);
}
