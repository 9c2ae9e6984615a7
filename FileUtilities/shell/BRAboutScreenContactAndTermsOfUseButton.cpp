#include "BRAboutScreenContactAndTermsOfUseButton.h"

#include "LookStyleSheets.h"

BRAboutScreenContactAndTermsOfUseButton::BRAboutScreenContactAndTermsOfUseButton(
    const QString &title, QWidget *parent)
    : QPushButton(title, parent)
{
    setStyleSheet(Look::StyleSheet::glassButton());
}
