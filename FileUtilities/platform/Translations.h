#pragma once

#include <QLocale>
#include <QString>

class QCoreApplication;

// The program's texts and Qt's own (dialog buttons, context menus) in the user's language.
namespace Translations {

// Where the program's compiled translations are embedded.
inline QString resourceFolder()
{
    return QStringLiteral(":/i18n");
}

// Installs Quillmere's translation for the locale and Qt's "qtbase" one beside it; the
// translators belong to the application. True when Quillmere has a translation for the
// locale's language, English (its plural forms) included; any other locale reads English.
bool install(QCoreApplication &application, const QLocale &locale);

} // namespace Translations

// The count that picks a plural form, which Qt takes as an int; a larger count reads as
// the largest int. Outside the namespace: lupdate misreads a qualified call.
int pluralCount(qint64 n);
