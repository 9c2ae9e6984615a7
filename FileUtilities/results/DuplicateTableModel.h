#pragma once

#include <QAbstractListModel>

class DuplicateResults;
struct GroupRecord;

// The rows of the results list, read from the results.
//
// The results change their lists first and announce the change after; the model keeps the
// row count it last announced until then, so that views never see a count that was not
// announced. A change that only added rows at the end is announced as an insertion,
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

    explicit DuplicateTableModel(const DuplicateResults &results, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    // What a group row says to a screen reader besides its name: what the row paints as
    // the bullet's count, the kind and the two sizes, and what removing the spares frees.
    // "3 copies, JPEG image, 2.1 MiB each, 6.3 MiB in all, 4.2 MiB reclaimable".
    static QString accessibleDescription(const GroupRecord &record);

    RowKind rowKind() const;
    // The group shown in `row`, or null for a placeholder or a group that is gone.
    const GroupRecord *recordAt(int row) const;
    QString keyAt(int row) const;

private:
    // Brings the views level with the results. `appendedOnly` says that since the last
    // reload, rows were only added after the existing ones.
    void reload(bool appendedOnly);
    // The rows' contents changed, not their number or order.
    void rowsChanged(int first, int last);

    const DuplicateResults &m_results;
    int m_rowCount = 0;
};
