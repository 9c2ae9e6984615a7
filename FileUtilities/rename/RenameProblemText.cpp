#include "RenameProblemText.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstring>

namespace {

QString quoted(const QString &name)
{
    return QCoreApplication::translate("RenameProblemText", "“%1”").arg(name);
}

} // namespace

QString RenameProblemText::conflict(const QString &fileName, const QString &targetName,
                                    NameCheck check)
{
    return QCoreApplication::translate("RenameProblemText", "%1 will not be renamed. %2")
        .arg(fileName, causeOfConflict(targetName, check));
}

QString RenameProblemText::failure(const QString &fileName, int error)
{
    return QCoreApplication::translate("RenameProblemText", "%1 could not be renamed. %2")
        .arg(fileName, causeOfError(error));
}

QString RenameProblemText::undoFailure(const QString &fileName, const QString &oldName,
                                       NameCheck check, int error)
{
    const QString cause = isConflict(check) ? causeOfConflict(oldName, check) : causeOfError(error);
    return QCoreApplication::translate("RenameProblemText", "%1 could not be named %2 again. %3")
        .arg(fileName, oldName, cause);
}

QString RenameProblemText::causeOfConflict(const QString &targetName, NameCheck check)
{
    switch (check) {
    case NameCheck::SameAsAnotherRow:
        return QCoreApplication::translate(
                   "RenameProblemText",
                   "Another file in the list would also be named %1 in this folder.")
            .arg(quoted(targetName));
    case NameCheck::TakenInFolder:
        return QCoreApplication::translate("RenameProblemText",
                                           "A file named %1 is already in this folder.")
            .arg(quoted(targetName));
    case NameCheck::DotOrDotDot:
        return QCoreApplication::translate("RenameProblemText",
                                           "%1 cannot be a file name: it names a folder.")
            .arg(quoted(targetName));
    case NameCheck::Slash:
        return QCoreApplication::translate(
                   "RenameProblemText", "%1 cannot be a file name: a name cannot hold a slash (/).")
            .arg(quoted(targetName));
    case NameCheck::Nul:
        return QCoreApplication::translate(
            "RenameProblemText", "The new name cannot be a file name: it holds a NUL character.");
    case NameCheck::NotEncodable:
        return QCoreApplication::translate(
            "RenameProblemText", "The new name cannot be a file name: it is not valid UTF-8.");
    case NameCheck::TooLong:
        return QCoreApplication::translate(
            "RenameProblemText", "The new name is longer than this folder's disk allows.");
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
        return QCoreApplication::translate(
            "RenameProblemText", "Permission denied: the file or its folder is locked, or you may "
                                 "not change it.");
    case EEXIST:
    case ENOTEMPTY:
        return QCoreApplication::translate("RenameProblemText",
                                           "A file with that name already exists.");
    case ENOENT:
        return QCoreApplication::translate("RenameProblemText", "The file was not found.");
    case EROFS:
        return QCoreApplication::translate("RenameProblemText", "The disk is read-only.");
    case ENOSPC:
    case EDQUOT:
        return QCoreApplication::translate("RenameProblemText", "The disk is full.");
    case EBUSY:
    case ETXTBSY:
        return QCoreApplication::translate("RenameProblemText", "The file is in use.");
    case ENAMETOOLONG:
        return QCoreApplication::translate(
            "RenameProblemText", "The new name is longer than this folder's disk allows.");
    case EINVAL:
        return QCoreApplication::translate("RenameProblemText",
                                           "The new name cannot be a file name.");
    case 0:
        return QCoreApplication::translate("RenameProblemText", "The system gave no reason.");
    default:
        break;
    }
    char buffer[256] = {};
    // The GNU strerror_r, which gives the text it chose; moves run on worker threads.
    const QString text = QString::fromLocal8Bit(::strerror_r(error, buffer, sizeof buffer));
    return QCoreApplication::translate("RenameProblemText", "The system said: %1.").arg(text);
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
