#pragma once

#include "NameCheck.h"

#include <QString>

// The sentences that tell the user why a file is not renamed, or could not be, or could
// not take its old name back: each names the file and the cause, in words a person uses,
// never a bare system text.
class RenameProblemText
{
public:
    // "photo.png will not be renamed. A file named “a.png” is already in this folder."
    static QString conflict(const QString &fileName, const QString &targetName, NameCheck check);
    // "photo.png could not be renamed. Permission denied."
    static QString failure(const QString &fileName, int error);
    // "Trip1.jpg could not be named photo.jpg again. A file with that name already exists."
    static QString undoFailure(const QString &fileName, const QString &oldName, NameCheck check,
                               int error);

    // The cause alone, as a sentence: "A file with that name already exists."
    static QString causeOfConflict(const QString &targetName, NameCheck check);
    static QString causeOfError(int error);

    // The system error a conflict stands for when a rename meets it at the last moment.
    static int errorOfConflict(NameCheck check);
};
