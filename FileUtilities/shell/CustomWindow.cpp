#include "CustomWindow.h"

CustomWindow::CustomWindow(QWidget *parent) : QMainWindow(parent)
{
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Qt::white);
    setPalette(palette);
    setAutoFillBackground(true);
}
