#pragma once

#include "RenameRecord.h"
#include "RowMark.h"

#include <QAbstractListModel>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QUrl>

#include <functional>

class RenameList;

// The rows of the rename list, read straight from a RenameList's keys and records: no
// copy is kept, so ten thousand rows cost nothing here.
//
// The list changes its rows first and says so after (rowsReset); until then the model
// keeps the row count it last announced, so a view never meets a count it was not told
// of. Files dropped between rows or below the last one go to the drop handler.
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
        // What follows the new name in the file's whole new name: ".jpg", or "" when the
        // file has no extension.
        SuffixRole,
        // The row's RowMark, as an int.
        MarkRole,
        // Why the row is marked, as a sentence that names the file; "" without a mark.
        MarkTextRole,
    };

    explicit RenameTableModel(QObject *parent = nullptr);

    // The list shown, read on its own thread only; null: no rows.
    void setList(const RenameList *list);
    // Called with the dropped URLs; its answer is the drop's. Unset: drops are refused.
    void setAcceptDrop(std::function<bool(const QList<QUrl> &)> acceptDrop);

    QString keyAt(int row) const;
    const RenameRecord *recordAt(int row) const;
    // -1 when the key is not listed.
    int rowOfKey(const QString &key) const;
    // The last component of the record's path, for a folder too ("/a/b/" gives "b").
    static QString lastPathComponent(const QUrl &url);
    // ".jpg" for a file whose name ends in .jpg; "" for none.
    static QString suffixOf(const RenameRecord &record);
    // A conflict outweighs a failure: it is what the user can change now. A failed row
    // whose name has since changed has lost its mark with its outcome.
    static RowMark markOf(const RenameRecord &record);
    static QString markText(const RenameRecord &record);
    // What a row says to a screen reader after its old name: the whole new name the row
    // paints, whether the user typed it, and why it is marked.
    static QString accessibleDescription(const RenameRecord &record);

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
    // The rows came, went or moved: every view starts over.
    void reload();
    // The same rows with other names or outcomes: repaints without rebuilding the view.
    void refreshNames();

    QPointer<const RenameList> m_list;
    std::function<bool(const QList<QUrl> &)> m_acceptDrop;
    int m_rowCount = 0;
};
