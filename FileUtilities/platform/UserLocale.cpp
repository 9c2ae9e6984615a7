#include "UserLocale.h"

namespace UserLocale {

QLocale forDisplay()
{
    const QLocale locale;
    if (locale.language() == QLocale::C)
        return QLocale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

QString shortDate(const QDateTime &moment)
{
    return forDisplay().toString(moment, QStringLiteral("dd MMM yyyy"));
}

} // namespace UserLocale
