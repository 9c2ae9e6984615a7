#include "BRDuplicateBarDivider.h"

#include "BRColorHelper.h"

BRDuplicateBarDivider::BRDuplicateBarDivider(QWidget *bar) : QFrame(bar)
{
    bar->setAutoFillBackground(true);
    QPalette ground = bar->palette();
    ground.setColor(QPalette::Window, BRColorHelper::color(250, 251, 252, 1.0));
    bar->setPalette(ground);

    setFrameShape(QFrame::HLine);
    setFrameShadow(QFrame::Plain);
    QPalette linePalette = palette();
    linePalette.setColor(QPalette::WindowText, BRColorHelper::color(0, 0, 0, 0.12));
    setPalette(linePalette);
}
