#include "BRAttributedTitle.h"

#include <QAbstractButton>

QFont BRAttributedTitle::font(int pointSize)
{
    QFont font;
    font.setFamilies({QStringLiteral("Helvetica Neue"), QStringLiteral("Helvetica")});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSize(pointSize);
    return font;
}

void BRAttributedTitle::apply(QAbstractButton *button, const QString &title, const QColor &color,
                              int pointSize)
{
    button->setText(title);
    button->setFont(font(pointSize));
    // Buttons with a style sheet of their own take their colour from it; this is for the
    // plain ones.
    QPalette palette = button->palette();
    palette.setColor(QPalette::ButtonText, color);
    palette.setColor(QPalette::WindowText, color);
    button->setPalette(palette);
}
