#pragma once

#include "RenameRecord.h"

#include <QAbstractListModel>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>

// The rows of the rename list, read straight from the rename screen's key list and
// records: no copy is kept, so ten thousand rows cost nothing here.
//
// The screen changes its lists first and calls reload() after; until then the model keeps
// the row count it last announced, so a view never meets a count it was not told of.
// Files dropped between rows or below the last one go to the screen's drop handler.
class RenameTableModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        KeyRole = Qt::UserRole + 1,
        SourcePathRole,
        // The new base name; an invalid QVariant when the row has none.
        DestinationRole,
        // True for a name the user typed.
        EditedRole,
    };

    explicit RenameTableModel(QObject *parent = nullptr);

    // The screen's lists, read on the main thread only. Either may be null: no rows.
    void setContents(const QStringList *keys, const RenameFileDetails *details);
    // Called with the dropped URLs; its answer is the drop's. Unset: drops are refused.
    void setAcceptDrop(std::function<bool(const QList<QUrl> &)> acceptDrop);
    // The lists changed: every view starts over from them.
    void reload();
    // The same rows with other names or outcomes: repaints without rebuilding the view.
    void refreshNames();

    QString keyAt(int row) const;
    const RenameRecord *recordAt(int row) const;
    // -1 when the key is not listed.
    int rowOfKey(const QString &key) const;
    // The last component of the record's path, for a folder too ("/a/b/" gives "b").
    static QString lastPathComponent(const QUrl &url);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    const QStringList *m_keys = nullptr;
    const RenameFileDetails *m_details = nullptr;
    std::function<bool(const QList<QUrl> &)> m_acceptDrop;
    int m_rowCount = 0;
};
