#include "CustomWindow.h"

#include "LookColors.h"

CustomWindow::CustomWindow(QWidget *parent) : QMainWindow(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Look::color(Look::Color::WindowGround));
    setPalette(palette);
    setAutoFillBackground(true);
}
