#pragma once

#include "NameCheck.h"
#include "NameSource.h"
#include "RenameOutcome.h"

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
    NameSource nameSource = NameSource::Rule;
    RenameOutcome outcome = RenameOutcome::NotTried;
    // What the new name met when last checked against the other rows and the folder.
    NameCheck check = {};
    // The system's error number of the move that failed, when the last rename failed in a
    // move; 0 otherwise.
    int failureError = {};
};

// The list's records under their keys (a file's last path component).
using RenameFileDetails = QHash<QString, RenameRecord>;
// Bookmark bytes under a file's full path.
using RenameBookmarks = QHash<QString, QByteArray>;
