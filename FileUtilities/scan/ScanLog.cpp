#include "ScanLog.h"

// Critical as the lowest level shown: warnings and debug messages stay off by default.
Q_LOGGING_CATEGORY(scanLog, "quillmere.scan", QtCriticalMsg)
