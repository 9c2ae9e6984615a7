#include "LookStyleSheets.h"

namespace Look::StyleSheet {

QString colorValue(Color role)
{
    // The style sheet parser reads #AARRGGBB exactly; a decimal alpha could be taken for a
    // count out of 255.
    const QColor value = Look::color(role);
    return value.alpha() == 255 ? value.name(QColor::HexRgb) : value.name(QColor::HexArgb);
}

QString filledButton(Color ground, Color title)
{
    return QStringLiteral("QPushButton { color: %1; background: %2; border: none;"
                          " border-radius: 5px; padding: 8px 18px; }")
        .arg(colorValue(title), colorValue(ground));
}

QString filledButton(Color ground, Color pressed, Color title)
{
    return filledButton(ground, title) +
           QStringLiteral(" QPushButton:pressed { background: %1; }").arg(colorValue(pressed));
}

QString glassButton()
{
    return QStringLiteral("QPushButton { color: %1; background: %2; border: 1px solid %3;"
                          " border-radius: 7px; padding: 6px 14px; }"
                          " QPushButton:pressed { background: %4; }")
        .arg(colorValue(Color::TextOnColor), colorValue(Color::GlassButtonGround),
             colorValue(Color::ControlBorder), colorValue(Color::GlassButtonPressed));
}

QString plainButton()
{
    return QStringLiteral("QPushButton { color: %1; background: %2; border: 1px solid %3;"
                          " border-radius: 5px; padding: 7px 16px; }"
                          " QPushButton:hover { background: %4; }"
                          " QPushButton:pressed { background: %5; }")
        .arg(colorValue(Color::PlainButtonText), colorValue(Color::PlainButtonGround),
             colorValue(Color::PlainButtonBorder), colorValue(Color::PlainButtonHover),
             colorValue(Color::PlainButtonPressed));
}

QString linkButton()
{
    return QStringLiteral("QPushButton { color: %1; border: none; padding: 4px; }"
                          " QPushButton:hover { text-decoration: underline; }")
        .arg(colorValue(Color::LinkText));
}

QString toolButton()
{
    return QStringLiteral("QToolButton { border: none; background: transparent; padding: 0px; }"
                          " QToolButton:hover { background: %1; border-radius: 6px; }"
                          " QToolButton:pressed { background: %2; }")
        .arg(colorValue(Color::ToolButtonHover), colorValue(Color::ToolButtonPressed));
}

QString roundedTextField()
{
    return QStringLiteral("QLineEdit { border: 1px solid %1; border-radius: 5px;"
                          " padding: 3px 6px; background: %2; }"
                          " QLineEdit:read-only { background: %3; border-color: %4; }")
        .arg(colorValue(Color::ControlBorder), colorValue(Color::FieldGround),
             colorValue(Color::ReadOnlyFieldGround), colorValue(Color::ReadOnlyFieldBorder));
}

QString roundedSearchField()
{
    return QStringLiteral("QLineEdit { border: 1px solid %1; border-radius: 14px;"
                          " padding: 4px 8px; background: %2; min-height: 20px; }")
        .arg(colorValue(Color::SearchFieldBorder), colorValue(Color::FieldGround));
}

QString progressTrack()
{
    return QStringLiteral("QProgressBar { border: none; border-radius: 3px; background: %1; }"
                          " QProgressBar::chunk { background: %2; width: 48px; }")
        .arg(colorValue(Color::ProgressTrack), colorValue(Color::DuplicatesAccent));
}

QString roundedBox(const QString &objectName)
{
    return QStringLiteral("#%1 { border: 1px solid %2; border-radius: 5px; }")
        .arg(objectName, colorValue(Color::BoxBorder));
}

QString buttonBar(const QString &objectName)
{
    return QStringLiteral("#%1 { background: %2; border-top: 1px solid %3; }")
        .arg(objectName, colorValue(Color::ButtonBarGround), colorValue(Color::ButtonBarDivider));
}

} // namespace Look::StyleSheet
