#include "BRAboutScreenContactAndTermsOfUseButton.h"

BRAboutScreenContactAndTermsOfUseButton::BRAboutScreenContactAndTermsOfUseButton(
    const QString &title, QWidget *parent)
    : QPushButton(title, parent)
{
    setStyleSheet(QStringLiteral(
        "QPushButton { color: white; background: rgba(0, 0, 0, 0.3);"
        " border: 1px solid rgba(128, 128, 128, 0.5); border-radius: 7px; padding: 6px 14px; }"
        "QPushButton:pressed { background: rgba(0, 0, 0, 0.45); }"));
}
