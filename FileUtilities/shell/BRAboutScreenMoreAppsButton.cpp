#include "BRAboutScreenMoreAppsButton.h"

#include "LookStyleSheets.h"

BRAboutScreenMoreAppsButton::BRAboutScreenMoreAppsButton(const QString &title, QWidget *parent)
    : QPushButton(title, parent)
{
    setStyleSheet(Look::StyleSheet::filledButton(
        Look::Color::MoreAppsGround, Look::Color::MoreAppsPressed, Look::Color::TextOnColor));
}
