#include "CopyProof.h"

#include "ContentComparison.h"

#include <QFile>

namespace {

bool lies(const QString &path, const QString &folder)
{
    return path.size() > folder.size() && path.startsWith(folder) &&
           (folder.endsWith(u'/') || path.at(folder.size()) == u'/');
}

} // namespace

CopyProof::Result CopyProof::prove(const QString &path, const std::optional<FileStamp> &scanned,
                                   const QStringList &otherPaths, const std::atomic<bool> &stop)
{
    const QByteArray native = QFile::encodeName(path);
    const std::optional<FileStamp> now = FileStamp::ofNativePath(native);
    if (!now)
        return Result{Outcome::Vanished, QString(), QString(), 0};
    if (!scanned || !now->unchangedSince(*scanned))
        return Result{Outcome::Changed, QString(), QStringLiteral("not as the scan saw it"), 0};

    Result result{Outcome::LastCopy, QString(), QString(), 0};
    bool anotherLeft = false;
    bool unreadable = false;
    for (const QString &other : otherPaths) {
        // A path inside the copy goes with it, and one around it holds it: neither can
        // stand in for it.
        if (other == path || lies(other, path) || lies(path, other))
            continue;
        const QByteArray otherNative = QFile::encodeName(other);
        if (!FileStamp::ofNativePath(otherNative))
            continue;
        anotherLeft = true;
        const ContentComparison::Result compared =
            now->isFolder ? ContentComparison::compareFolders(native, otherNative, stop)
                          : ContentComparison::compareFiles(native, otherNative, stop);
        result.bytesRead += compared.bytesRead;
        switch (compared.verdict) {
        case ContentComparison::Verdict::Equal:
            result.outcome = Outcome::Proven;
            result.equalCopy = other;
            return result;
        case ContentComparison::Verdict::Cancelled:
            result.outcome = Outcome::Cancelled;
            return result;
        case ContentComparison::Verdict::Unreadable:
            unreadable = true;
            result.detail = compared.detail;
            break;
        case ContentComparison::Verdict::Different:
            if (!unreadable)
                result.detail = compared.detail;
            break;
        }
    }
    if (anotherLeft)
        result.outcome = unreadable ? Outcome::Unreadable : Outcome::NotACopy;
    return result;
}
