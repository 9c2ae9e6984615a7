#include "BRRenameTableCustomClipView.h"

BRRenameTableCustomClipView::BRRenameTableCustomClipView(QWidget *parent) : QWidget(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Qt::white);
    setPalette(palette);
    setAutoFillBackground(true);
}
