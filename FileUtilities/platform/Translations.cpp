#include "Translations.h"

#include "PlatformLog.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <limits>

namespace Translations {

bool install(QCoreApplication &application, const QLocale &locale)
{
    auto *own = new QTranslator(&application);
    const bool found =
        own->load(locale, QStringLiteral("quillmere"), QStringLiteral("_"), resourceFolder());
    if (found)
        QCoreApplication::installTranslator(own);
    else
        delete own;

    auto *qt = new QTranslator(&application);
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
    if (!found && locale.language() != QLocale::English && locale.language() != QLocale::C)
        qCDebug(platformLog).noquote() << "no translation for" << locale.name();
    return found;
}

} // namespace Translations

int pluralCount(qint64 n)
{
    return n > std::numeric_limits<int>::max() ? std::numeric_limits<int>::max()
                                               : static_cast<int>(n);
}
