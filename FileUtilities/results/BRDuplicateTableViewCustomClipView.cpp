#include "BRDuplicateTableViewCustomClipView.h"

#include "LookColors.h"

BRDuplicateTableViewCustomClipView::BRDuplicateTableViewCustomClipView(QWidget *parent)
    : QWidget(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Look::color(Look::Color::WindowGround));
    setPalette(palette);
    setAutoFillBackground(true);
}
