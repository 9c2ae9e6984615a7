#include "BRRealHomeDirectory.h"

#include <QFile>

#include <pwd.h>
#include <unistd.h>

std::optional<QString> BRRealHomeDirectory::RealHomeDirectory()
{
    const passwd *entry = ::getpwuid(::getuid());
    if (!entry || !entry->pw_dir || entry->pw_dir[0] == '\0')
        return std::nullopt;
    return QFile::decodeName(entry->pw_dir);
}
