#include "ResultsLog.h"

// Critical as the lowest level shown: warnings and debug messages stay off by default.
Q_LOGGING_CATEGORY(resultsLog, "quillmere.results", QtCriticalMsg)
