#pragma once

#include <QString>
#include <QUrl>

#include <optional>

// What a preview is asked to show: the file, and a title for it if there is one.
struct BRQuickLookItem
{
    std::optional<QUrl> previewItemURL;
    std::optional<QString> previewItemTitle;
};
