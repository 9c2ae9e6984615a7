#pragma once

#include <QAbstractListModel>

class BRDuplicateFilesViewController;
struct GroupRecord;

// The rows of the results list, read from the results screen's store.
//
// The store changes its lists first and asks for a reload after; the model keeps the row
// count it last announced until then, so that views never see a count that was not
// announced. A reload that only added rows at the end is announced as an insertion,
// which keeps the scroll position while a scan streams in.
class DuplicateTableModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class RowKind
    {
        Group,
        NoSearchResult,
        NoSubTypeFound
    };
    enum Role
    {
        KeyRole = Qt::UserRole + 1,
        RowKindRole,
    };

    explicit DuplicateTableModel(const BRDuplicateFilesViewController &store,
                                 QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    RowKind rowKind() const;
    // The group shown in `row`, or null for a placeholder or a group that is gone.
    const GroupRecord *recordAt(int row) const;
    QString keyAt(int row) const;

    // Brings the views level with the store. `appendedOnly` says that since the last
    // reload, rows were only added after the existing ones.
    void reload(bool appendedOnly);
    // The rows' contents changed, not their number or order.
    void rowsChanged(int first, int last);

private:
    const BRDuplicateFilesViewController &m_store;
    int m_rowCount = 0;
};
