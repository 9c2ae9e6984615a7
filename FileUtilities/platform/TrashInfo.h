#pragma once

#include <QByteArray>
#include <QDateTime>

#include <optional>

// The record that goes with each item in the Trash, "NAME.trashinfo" in the Trash's "info"
// folder, as freedesktop.org's Trash 1.0 lays it out:
//
//   [Trash Info]
//   Path=/home/me/Photos/a%20copy.jpg
//   DeletionDate=2024-05-01T09:30:00
//
// Path= holds the bytes of the item's native path, escaped as in a URL, so that any name a
// Linux file system allows (a newline, '%', bytes that are not UTF-8) reads back exactly.
struct TrashInfo
{
    // Native bytes: absolute for the home Trash, relative to the drive's top folder for the
    // Trash of another drive.
    QByteArray path;
    // Local time, whole seconds.
    QDateTime deletionDate;

    QByteArray toBytes() const;
    // Nothing when the text is no record: no "[Trash Info]" group, no Path= or a Path=
    // that is not properly escaped. A missing or unreadable date gives an invalid one.
    static std::optional<TrashInfo> fromBytes(const QByteArray &content);

    // Escapes every byte but the unreserved ones of RFC 2396 and '/'.
    static QByteArray encodePath(const QByteArray &nativePath);
    // Nothing when a '%' is not followed by two hex digits, or the result holds a NUL.
    static std::optional<QByteArray> decodePath(const QByteArray &encodedPath);
};
