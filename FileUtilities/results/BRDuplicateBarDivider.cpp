#include "BRDuplicateBarDivider.h"

#include "LookColors.h"

BRDuplicateBarDivider::BRDuplicateBarDivider(QWidget *bar) : QFrame(bar)
{
    bar->setAutoFillBackground(true);
    QPalette ground = bar->palette();
    ground.setColor(QPalette::Window, Look::color(Look::Color::BarGround));
    bar->setPalette(ground);

    setFrameShape(QFrame::HLine);
    setFrameShadow(QFrame::Plain);
    QPalette linePalette = palette();
    linePalette.setColor(QPalette::WindowText, Look::color(Look::Color::Divider));
    setPalette(linePalette);
}
