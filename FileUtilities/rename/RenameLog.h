#pragma once

#include <QLoggingCategory>

// Messages of the batch renamer: names refused, moves that failed, files not found again.
// Silent unless QT_LOGGING_RULES turns "quillmere.rename" on.
Q_DECLARE_LOGGING_CATEGORY(renameLog)
