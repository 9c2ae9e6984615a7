#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

// The language and conventions numbers and dates are shown in: the user's, except where
// the system gives only the C locale (terminals, CI), which has no grouping and whose
// numbers would then read differently from every other program's; English stands in there.
namespace UserLocale {

QLocale forDisplay();
// "07 Mar 2018", "07 März 2018", "07 mars 2018".
QString shortDate(const QDateTime &moment);

} // namespace UserLocale
