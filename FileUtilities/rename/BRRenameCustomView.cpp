#include "BRRenameCustomView.h"

#include "LookColors.h"

BRRenameCustomView::BRRenameCustomView(QWidget *parent) : QWidget(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Look::color(Look::Color::WindowGround));
    setPalette(palette);
    setAutoFillBackground(true);
}
