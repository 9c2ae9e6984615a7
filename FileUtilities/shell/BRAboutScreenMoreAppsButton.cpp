#include "BRAboutScreenMoreAppsButton.h"

BRAboutScreenMoreAppsButton::BRAboutScreenMoreAppsButton(const QString &title, QWidget *parent)
    : QPushButton(title, parent)
{
    setStyleSheet(QStringLiteral("QPushButton { color: white; background: rgba(35, 196, 142, 1.0);"
                                 " border: none; border-radius: 5px; padding: 8px 18px; }"
                                 "QPushButton:pressed { background: rgba(28, 160, 116, 1.0); }"));
}
