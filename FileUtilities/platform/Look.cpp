#include "Look.h"

#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QWidget>

namespace Look {

QStringList families(QFont::Weight weight)
{
    QStringList names{QStringLiteral("Helvetica Neue"), QStringLiteral("Helvetica"),
                      QFontDatabase::systemFont(QFontDatabase::GeneralFont).family()};
    if (weight == QFont::Medium)
        names.prepend(QStringLiteral("Helvetica Neue Medium"));
    return names;
}

QFont font(int pixelSize, QFont::Weight weight)
{
    QFont font;
    font.setFamilies(families(weight));
    // Where even the system's face is missing, any sans-serif rather than a serif.
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

void setTextColor(QWidget *widget, Color color, QPalette::ColorRole textRole)
{
    QPalette palette = widget->palette();
    palette.setColor(textRole, Look::color(color));
    widget->setPalette(palette);
}

void setTextStyle(QWidget *widget, int pixelSize, QFont::Weight weight, Color color)
{
    widget->setFont(font(pixelSize, weight));
    QPalette palette = widget->palette();
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(role, Look::color(color));
    widget->setPalette(palette);
}

QLabel *label(QWidget *parent, int pixelSize, QFont::Weight weight, Color color,
              const QString &text)
{
    auto *label = new QLabel(text, parent);
    setTextStyle(label, pixelSize, weight, color);
    return label;
}

QString imagePath(const QString &name)
{
    const QString prefix = QStringLiteral(":/images/") + name;
    if (tone() == Tone::Dark && QFile::exists(prefix + QStringLiteral("-dark.svg")))
        return prefix + QStringLiteral("-dark.svg");
    return prefix + QStringLiteral(".svg");
}

} // namespace Look
