#pragma once

#include <QHash>
#include <QMimeDatabase>
#include <QString>
#include <QStringList>

// Whether a file's type belongs to a broader kind: an image, a movie, a document. A type
// is a MIME type name (or any other identifier, such as "Folder"); a kind is one of
// UniformTypes or a type itself. A type belongs to itself, to the types it inherits from
// in the shared MIME database, and to the kinds of a table of our own, since the MIME
// database has no notion of "content" or "source code".
//
// Not thread-safe: each thread that asks keeps its own instance.
class TypeConformance
{
public:
    bool conformsTo(const QString &type, const QString &kind) const;

private:
    bool inheritsAny(const QString &type, const QStringList &ancestors) const;

    QMimeDatabase m_mimeDatabase;
};
