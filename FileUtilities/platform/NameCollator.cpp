#include "NameCollator.h"

#include <QLocale>

namespace {

QLocale collationLocale()
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return QLocale(QLocale::English, QLocale::UnitedStates);
    return system;
}

} // namespace

NameCollator::NameCollator() : m_collator(collationLocale())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}
