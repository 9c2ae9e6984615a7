#pragma once

#include <QLoggingCategory>

// Messages of the desktop services: the walk, moves, the Trash, thumbnails. Silent unless
// QT_LOGGING_RULES turns "quillmere.platform" on.
Q_DECLARE_LOGGING_CATEGORY(platformLog)
