#include "BRIntroGotItButton.h"

#include "LookStyleSheets.h"

BRIntroGotItButton::BRIntroGotItButton(QWidget *parent) : QPushButton(parent)
{
    setStyleSheet(Look::StyleSheet::filledButton(Look::Color::Accent));
}
