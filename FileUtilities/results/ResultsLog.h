#pragma once

#include <QLoggingCategory>

// Messages of the duplicate results: reports dropped as stale, copies that could not be removed.
// Silent unless QT_LOGGING_RULES turns "quillmere.results" on.
Q_DECLARE_LOGGING_CATEGORY(resultsLog)
