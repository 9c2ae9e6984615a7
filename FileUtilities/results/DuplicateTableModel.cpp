#include "DuplicateTableModel.h"

#include "BRDuplicateTableViewCell.h"
#include "BRNoSearchResultCell.h"
#include "BRNoSubTypeFoundCell.h"
#include "ByteCountFormatter.h"
#include "DuplicateResults.h"
#include "Translations.h"
#include "UserLocale.h"

#include <QCoreApplication>
#include <QSize>

DuplicateTableModel::DuplicateTableModel(const DuplicateResults &results, QObject *parent)
    : QAbstractListModel(parent), m_results(results)
{
    connect(&results, &DuplicateResults::rowsAppended, this, [this] { reload(true); });
    connect(&results, &DuplicateResults::listReset, this, [this] { reload(false); });
    connect(&results, &DuplicateResults::rowChanged, this,
            [this](int row) { rowsChanged(row, row); });
    connect(&results, &DuplicateResults::allRowsChanged, this,
            [this] { rowsChanged(0, m_rowCount - 1); });
}

int DuplicateTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

DuplicateTableModel::RowKind DuplicateTableModel::rowKind() const
{
    switch (m_results.listContent()) {
    case DuplicateResults::ListContent::Groups:
        return RowKind::Group;
    case DuplicateResults::ListContent::NoSearchHits:
        return RowKind::NoSearchResult;
    case DuplicateResults::ListContent::NoGroupsOfSubType:
        return RowKind::NoSubTypeFound;
    }
    Q_UNREACHABLE();
    return RowKind::Group;
}

QString DuplicateTableModel::keyAt(int row) const
{
    const QStringList &keys = m_results.checkSearchActiveAndGetData();
    return (row >= 0 && row < keys.size()) ? keys.at(row) : QString();
}

const GroupRecord *DuplicateTableModel::recordAt(int row) const
{
    if (rowKind() != RowKind::Group)
        return nullptr;
    const QString key = keyAt(row);
    return key.isNull() ? nullptr : m_results.groups().find(key);
}

QVariant DuplicateTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rowCount)
        return {};
    const RowKind kind = rowKind();
    switch (role) {
    case RowKindRole:
        return static_cast<int>(kind);
    case KeyRole:
        return kind == RowKind::Group ? keyAt(index.row()) : QString();
    case Qt::SizeHintRole:
        return QSize(0, kind == RowKind::Group ? BRDuplicateTableViewCell::groupRowHeight
                                               : BRDuplicateTableViewCell::placeholderRowHeight);
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        if (kind == RowKind::NoSearchResult)
            return BRNoSearchResultCell::text();
        if (kind == RowKind::NoSubTypeFound)
            return BRNoSubTypeFoundCell::text(m_results.selectedSubType());
        if (const GroupRecord *record = recordAt(index.row()))
            return record->fileName;
        return {};
    case Qt::AccessibleDescriptionRole:
        if (const GroupRecord *record = recordAt(index.row()))
            return accessibleDescription(*record);
        return {};
    default:
        return {};
    }
}

QString DuplicateTableModel::accessibleDescription(const GroupRecord &record)
{
    const qsizetype copies = record.filePath.size();
    QStringList parts;
    parts.append(copies == 1
                     ? QCoreApplication::translate("DuplicateTableModel", "1 copy")
                     : QCoreApplication::translate("DuplicateTableModel", "%1 copies", nullptr,
                                                   pluralCount(copies))
                           .arg(UserLocale::forDisplay().toString(static_cast<qlonglong>(copies))));
    if (!record.fileType.isEmpty())
        parts.append(record.fileType);
    parts.append(QCoreApplication::translate("DuplicateTableModel", "%1 each")
                     .arg(ByteCountFormatter::binary(record.fileSize)));
    parts.append(QCoreApplication::translate("DuplicateTableModel", "%1 in all")
                     .arg(ByteCountFormatter::binary(record.totalSize)));
    // Every copy but one can go.
    parts.append(
        QCoreApplication::translate("DuplicateTableModel", "%1 reclaimable")
            .arg(ByteCountFormatter::binary(qMax<qint64>(0, record.totalSize - record.fileSize))));
    return parts.join(QStringLiteral(", "));
}

void DuplicateTableModel::reload(bool appendedOnly)
{
    const int rows = m_results.numberOfRows();
    if (appendedOnly && rows > m_rowCount && rowKind() == RowKind::Group) {
        beginInsertRows(QModelIndex(), m_rowCount, rows - 1);
        m_rowCount = rows;
        endInsertRows();
        return;
    }
    if (appendedOnly && rows == m_rowCount) {
        rowsChanged(0, rows - 1);
        return;
    }
    beginResetModel();
    m_rowCount = rows;
    endResetModel();
}

void DuplicateTableModel::rowsChanged(int first, int last)
{
    first = qMax(first, 0);
    last = qMin(last, m_rowCount - 1);
    if (first <= last)
        Q_EMIT dataChanged(index(first), index(last));
}
