#include "FileMover.h"

#include "PlatformLog.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// strerror_r (the GNU form, which gives the text it chose) since moves run on worker threads.
FileMover::Result failure(int error)
{
    char buffer[256] = {};
    const char *text = ::strerror_r(error, buffer, sizeof buffer);
    return FileMover::Result{false, error, QString::fromLocal8Bit(text)};
}

// The kernel or the file system does not know RENAME_NOREPLACE.
bool lacksNoReplace(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

} // namespace

FileMover::Result FileMover::move(const QString &sourcePath, const QString &targetPath)
{
    Result result = moveWithoutReplacing(sourcePath, targetPath);
    if (!result.success)
        qCWarning(platformLog).noquote()
            << "could not move" << sourcePath << "to" << targetPath << ":" << result.errorText;
    return result;
}

FileMover::Result FileMover::moveWithoutReplacing(const QString &sourcePath,
                                                  const QString &targetPath)
{
    const QByteArray source = QFile::encodeName(sourcePath);
    const QByteArray target = QFile::encodeName(targetPath);
    if (source.isEmpty() || target.isEmpty())
        return failure(ENOENT);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) ==
        0)
        return Result{true, 0, QString()};
    const int error = errno;
    if (!lacksNoReplace(error))
        return failure(error);
    // EINVAL also means a folder moved into itself; only a file may take the other way,
    // and a folder's own error is the one to report.
    struct stat info = {};
    if (::lstat(source.constData(), &info) != 0)
        return failure(errno);
    if (S_ISDIR(info.st_mode))
        return failure(error);
    return moveByLink(sourcePath, targetPath);
}

FileMover::Result FileMover::moveByLink(const QString &sourcePath, const QString &targetPath)
{
    const QByteArray source = QFile::encodeName(sourcePath);
    const QByteArray target = QFile::encodeName(targetPath);
    if (source.isEmpty() || target.isEmpty())
        return failure(ENOENT);
    // Without AT_SYMLINK_FOLLOW a symbolic link is linked as itself, as a move would.
    if (::linkat(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), 0) != 0)
        return failure(errno);
    if (::unlink(source.constData()) != 0) {
        const int error = errno;
        // The new name is a second link we made a moment ago, to the same data that the
        // old name still holds: taking it away restores the folder as it was.
        ::unlink(target.constData());
        return failure(error);
    }
    return Result{true, 0, QString()};
}

bool FileMover::isValidFileName(const QString &name, const QString &folderPath)
{
    return problemWithName(name, nameMaxIn(folderPath)) == NameProblem::None;
}

FileMover::NameProblem FileMover::problemWithName(const QString &name, long nameMax)
{
    if (name.isEmpty())
        return NameProblem::Empty;
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return NameProblem::DotOrDotDot;
    if (name.contains(QLatin1Char('/')))
        return NameProblem::Slash;
    if (name.contains(QChar(u'\0')))
        return NameProblem::Nul;
    // The length in UTF-8, the file-name encoding, counted without making the bytes: a rule
    // run checks ten thousand names. An unpaired surrogate has no encoding at all: the file
    // would get another name than shown.
    qsizetype bytes = 0;
    for (qsizetype at = 0; at < name.size(); ++at) {
        const char16_t unit = name.at(at).unicode();
        if (unit < 0x80) {
            bytes += 1;
        } else if (unit < 0x800) {
            bytes += 2;
        } else if (QChar::isHighSurrogate(unit)) {
            if (at + 1 == name.size() || !QChar::isLowSurrogate(name.at(at + 1).unicode()))
                return NameProblem::NotEncodable;
            bytes += 4;
            ++at;
        } else if (QChar::isLowSurrogate(unit)) {
            return NameProblem::NotEncodable;
        } else {
            bytes += 3;
        }
    }
    return bytes <= nameMax ? NameProblem::None : NameProblem::TooLong;
}

long FileMover::nameMaxIn(const QString &folderPath)
{
    if (folderPath.isEmpty())
        return NAME_MAX;
    const long limit = ::pathconf(QFile::encodeName(folderPath).constData(), _PC_NAME_MAX);
    return limit > 0 ? limit : NAME_MAX;
}
