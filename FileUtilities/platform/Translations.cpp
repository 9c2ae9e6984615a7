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
    // English finds its own file of plural forms here, so that one file is "1 file".
    const bool found =
        own->load(locale, QStringLiteral("quillmere"), QStringLiteral("_"), resourceFolder());
    // Any other language without a translation, and the C locale of scripts, read the English
    // source texts, and so take their plural forms too.
    const bool english = !found && own->load(QStringLiteral("quillmere_en"), resourceFolder());
    if (found || english)
        QCoreApplication::installTranslator(own);
    else
        delete own;

    auto *qt = new QTranslator(&application);
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
    if (!found && locale.language() != QLocale::C)
        qCDebug(platformLog).noquote() << "no translation for" << locale.name();
    return found;
}

} // namespace Translations

int pluralCount(qint64 n)
{
    return n > std::numeric_limits<int>::max() ? std::numeric_limits<int>::max()
                                               : static_cast<int>(n);
}
