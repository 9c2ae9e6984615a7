#include "BRRenameTableCustomClipView.h"

#include "LookColors.h"

BRRenameTableCustomClipView::BRRenameTableCustomClipView(QWidget *parent) : QWidget(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Look::color(Look::Color::WindowGround));
    setPalette(palette);
    setAutoFillBackground(true);
}
