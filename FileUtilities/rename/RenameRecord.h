#pragma once

#include <QHash>
#include <QString>
#include <QUrl>

#include <optional>

// One entry of the rename list. The thumbnail is not kept here: rows ask the thumbnail
// cache when they are painted, so adding ten thousand files costs no image work.
struct RenameRecord
{
    // Where the file is now; replaced when its bookmark finds it somewhere else.
    QUrl sourceURL;
    // The new base name, without extension. Absent once a rule was cleared.
    std::optional<QString> destinationURL = QString();
    // "" for a name that follows the rule, "edited" for one the user typed.
    QString editableState;
    // Outcome of the last rename: "", "Success" or "Failed".
    QString State;
};

// The list's records under their keys (a file's last path component).
using RenameFileDetails = QHash<QString, RenameRecord>;
// Bookmark bytes under a file's full path.
using RenameBookmarks = QHash<QString, QByteArray>;

namespace RenameTexts {
inline const QString changeFullFileNames = QStringLiteral("Change full file names to");
inline const QString addTextToExistingNames = QStringLiteral("Add text to existing names");
inline const QString afterName = QStringLiteral("After name");
inline const QString beforeName = QStringLiteral("Before name");
inline const QString edited = QStringLiteral("edited");
inline const QString success = QStringLiteral("Success");
inline const QString failed = QStringLiteral("Failed");
inline const QString missingFilesTitle = QStringLiteral("Missing files");
inline const QString missingFilesText =
    QStringLiteral("Some files are missing and could not be found.");
} // namespace RenameTexts
