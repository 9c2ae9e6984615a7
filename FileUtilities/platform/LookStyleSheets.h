#pragma once

#include "LookColors.h"

#include <QString>

// The style sheets of the program's own controls, one per kind, made from the named
// colours. A screen picks the kind; the values live here.
namespace Look::StyleSheet {

// A colour as a style sheet writes it, alpha included.
QString colorValue(Color role);

// A coloured button with a light title: the main actions and their kin.
QString filledButton(Color ground, Color title = Color::TextOnColor);
// The same with a darker ground while pressed.
QString filledButton(Color ground, Color pressed, Color title);
// A translucent, outlined button for a dark picture.
QString glassButton();
// A white button with a grey outline, for the lesser actions in a bar.
QString plainButton();
// A lesser action written as a link, underlined under the pointer.
QString linkButton();
// The icon buttons of a list row: nothing until the pointer is over them.
QString toolButton();

// A text field with a rounded outline; greyed while it cannot be typed into.
QString roundedTextField();
// The search field of a list's header, rounded at its ends.
QString roundedSearchField();

// A progress bar drawn as a thin track with a moving segment.
QString progressTrack();
// A rounded outline around the widget with this object name only, not its children.
QString roundedBox(const QString &objectName);
// A bar of buttons under a list: its ground and the line above it.
QString buttonBar(const QString &objectName);

} // namespace Look::StyleSheet
