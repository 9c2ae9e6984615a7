#pragma once

#include <QLoggingCategory>

// Messages of the scan engine: folders it cannot walk, files it cannot fingerprint.
// Silent unless QT_LOGGING_RULES turns "quillmere.scan" on.
Q_DECLARE_LOGGING_CATEGORY(scanLog)
