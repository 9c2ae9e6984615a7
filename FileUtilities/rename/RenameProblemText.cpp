#include "RenameProblemText.h"

#include <cerrno>
#include <cstring>

namespace {

QString quoted(const QString &name)
{
    return QStringLiteral("\u201c%1\u201d").arg(name);
}

} // namespace

QString RenameProblemText::conflict(const QString &fileName, const QString &targetName,
                                    NameCheck check)
{
    return QStringLiteral("%1 will not be renamed. %2")
        .arg(fileName, causeOfConflict(targetName, check));
}

QString RenameProblemText::failure(const QString &fileName, int error)
{
    return QStringLiteral("%1 could not be renamed. %2").arg(fileName, causeOfError(error));
}

QString RenameProblemText::undoFailure(const QString &fileName, const QString &oldName,
                                       NameCheck check, int error)
{
    const QString cause = isConflict(check) ? causeOfConflict(oldName, check) : causeOfError(error);
    return QStringLiteral("%1 could not be named %2 again. %3").arg(fileName, oldName, cause);
}

QString RenameProblemText::causeOfConflict(const QString &targetName, NameCheck check)
{
    switch (check) {
    case NameCheck::SameAsAnotherRow:
        return QStringLiteral("Another file in the list would also be named %1 in this folder.")
            .arg(quoted(targetName));
    case NameCheck::TakenInFolder:
        return QStringLiteral("A file named %1 is already in this folder.").arg(quoted(targetName));
    case NameCheck::DotOrDotDot:
        return QStringLiteral("%1 cannot be a file name: it names a folder.")
            .arg(quoted(targetName));
    case NameCheck::Slash:
        return QStringLiteral("%1 cannot be a file name: a name cannot hold a slash (/).")
            .arg(quoted(targetName));
    case NameCheck::Nul:
        return QStringLiteral("The new name cannot be a file name: it holds a NUL character.");
    case NameCheck::NotEncodable:
        return QStringLiteral("The new name cannot be a file name: it is not valid UTF-8.");
    case NameCheck::TooLong:
        return QStringLiteral("The new name is longer than this folder's disk allows.");
    case NameCheck::Unchecked:
    case NameCheck::NoName:
    case NameCheck::Free:
    case NameCheck::Unchanged:
        break;
    }
    return QString();
}

QString RenameProblemText::causeOfError(int error)
{
    switch (error) {
    case EACCES:
    case EPERM:
        return QStringLiteral("Permission denied: the file or its folder is locked, or you may "
                              "not change it.");
    case EEXIST:
    case ENOTEMPTY:
        return QStringLiteral("A file with that name already exists.");
    case ENOENT:
        return QStringLiteral("The file was not found.");
    case EROFS:
        return QStringLiteral("The disk is read-only.");
    case ENOSPC:
    case EDQUOT:
        return QStringLiteral("The disk is full.");
    case EBUSY:
    case ETXTBSY:
        return QStringLiteral("The file is in use.");
    case ENAMETOOLONG:
        return QStringLiteral("The new name is longer than this folder's disk allows.");
    case EINVAL:
        return QStringLiteral("The new name cannot be a file name.");
    case 0:
        return QStringLiteral("The system gave no reason.");
    default:
        break;
    }
    char buffer[256] = {};
    // The GNU strerror_r, which gives the text it chose; moves run on worker threads.
    const QString text = QString::fromLocal8Bit(::strerror_r(error, buffer, sizeof buffer));
    return QStringLiteral("The system said: %1.").arg(text);
}

int RenameProblemText::errorOfConflict(NameCheck check)
{
    switch (check) {
    case NameCheck::SameAsAnotherRow:
    case NameCheck::TakenInFolder:
        return EEXIST;
    case NameCheck::TooLong:
        return ENAMETOOLONG;
    case NameCheck::DotOrDotDot:
    case NameCheck::Slash:
    case NameCheck::Nul:
    case NameCheck::NotEncodable:
        return EINVAL;
    case NameCheck::Unchecked:
    case NameCheck::NoName:
    case NameCheck::Free:
    case NameCheck::Unchanged:
        break;
    }
    return 0;
}
