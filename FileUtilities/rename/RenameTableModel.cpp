#include "RenameTableModel.h"

#include "BRRenameFormat.h"
#include "RenameList.h"
#include "RenameProblemText.h"

#include <QCoreApplication>
#include <QMimeData>

RenameTableModel::RenameTableModel(QObject *parent) : QAbstractListModel(parent) {}

void RenameTableModel::setList(const RenameList *list)
{
    if (m_list)
        disconnect(m_list, nullptr, this, nullptr);
    beginResetModel();
    m_list = list;
    m_rowCount = m_list ? m_list->rowCount() : 0;
    endResetModel();
    if (!m_list)
        return;
    connect(m_list, &RenameList::rowsReset, this, &RenameTableModel::reload);
    connect(m_list, &RenameList::namesChanged, this, &RenameTableModel::refreshNames);
    connect(m_list, &QObject::destroyed, this, [this] { setList(nullptr); });
}

void RenameTableModel::setAcceptDrop(std::function<bool(const QList<QUrl> &)> acceptDrop)
{
    m_acceptDrop = std::move(acceptDrop);
}

void RenameTableModel::reload()
{
    beginResetModel();
    m_rowCount = m_list ? m_list->rowCount() : 0;
    endResetModel();
}

void RenameTableModel::refreshNames()
{
    if (m_rowCount > 0)
        Q_EMIT dataChanged(index(0), index(m_rowCount - 1));
}

QString RenameTableModel::keyAt(int row) const
{
    if (!m_list || row < 0 || row >= m_rowCount || row >= m_list->rowCount())
        return {};
    return m_list->keys().at(row);
}

const RenameRecord *RenameTableModel::recordAt(int row) const
{
    if (!m_list)
        return nullptr;
    const QString key = keyAt(row);
    if (key.isNull())
        return nullptr;
    const RenameFileDetails &records = m_list->records();
    const auto found = records.constFind(key);
    return found == records.constEnd() ? nullptr : &found.value();
}

int RenameTableModel::rowOfKey(const QString &key) const
{
    if (!m_list)
        return -1;
    const qsizetype row = m_list->keys().indexOf(key);
    return row < m_rowCount ? static_cast<int>(row) : -1;
}

QString RenameTableModel::lastPathComponent(const QUrl &url)
{
    QString path = url.path();
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

int RenameTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

QString RenameTableModel::suffixOf(const RenameRecord &record)
{
    const QString extension = BRRenameFormat::pathExtension(record.sourceURL);
    return extension.isEmpty() ? QString() : QLatin1Char('.') + extension;
}

RowMark RenameTableModel::markOf(const RenameRecord &record)
{
    if (!record.destinationURL || record.destinationURL->isEmpty())
        return RowMark::None;
    if (isConflict(record.check))
        return RowMark::Conflict;
    if (record.outcome == RenameOutcome::Failed)
        return RowMark::Failed;
    return RowMark::None;
}

QString RenameTableModel::markText(const RenameRecord &record)
{
    const QString file = lastPathComponent(record.sourceURL);
    switch (markOf(record)) {
    case RowMark::Conflict: {
        const QString target =
            BRRenameFormat::targetFileName(record.sourceURL, *record.destinationURL);
        return RenameProblemText::conflict(file, target, record.check);
    }
    case RowMark::Failed:
        return RenameProblemText::failure(file, record.failureError);
    case RowMark::None:
        break;
    }
    return QString();
}

QString RenameTableModel::accessibleDescription(const RenameRecord &record)
{
    if (!record.destinationURL || record.destinationURL->isEmpty())
        return QCoreApplication::translate("RenameTableModel", "No new name");
    const QString whole = *record.destinationURL + suffixOf(record);
    const QString name =
        record.nameSource == NameSource::HandEdit
            ? QCoreApplication::translate("RenameTableModel", "New name, typed: %1").arg(whole)
            : QCoreApplication::translate("RenameTableModel", "New name: %1").arg(whole);
    const QString why = markText(record);
    return why.isEmpty() ? name : name + QStringLiteral(". ") + why;
}

QVariant RenameTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case KeyRole:
        return keyAt(index.row());
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
    case Qt::AccessibleDescriptionRole:
    case Qt::ToolTipRole:
    case SourcePathRole:
    case DestinationRole:
    case EditedRole:
    case SuffixRole:
    case MarkRole:
    case MarkTextRole:
        break;
    default:
        return {};
    }
    const RenameRecord *record = recordAt(index.row());
    if (!record)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return lastPathComponent(record->sourceURL);
    case Qt::AccessibleDescriptionRole:
        return accessibleDescription(*record);
    case Qt::ToolTipRole:
    case SourcePathRole:
        return record->sourceURL.path();
    case DestinationRole:
        return record->destinationURL ? QVariant(*record->destinationURL) : QVariant();
    case EditedRole:
        return record->nameSource == NameSource::HandEdit;
    case SuffixRole:
        return suffixOf(*record);
    case MarkRole:
        return static_cast<int>(markOf(*record));
    case MarkTextRole:
        return markText(*record);
    default:
        return {};
    }
}

Qt::ItemFlags RenameTableModel::flags(const QModelIndex &index) const
{
    // The empty area takes drops. The rows say they do too, so that a view tells a drop on
    // a row from one between rows, and then refuses it in canDropMimeData.
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    // Selectable, though the list selects nothing: assistive tools offer the keyboard's
    // focus only to rows that say so.
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled |
           Qt::ItemNeverHasChildren;
}

QStringList RenameTableModel::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

Qt::DropActions RenameTableModel::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction;
}

bool RenameTableModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int, int,
                                       const QModelIndex &parent) const
{
    // A row is not a folder: nothing can go into one. Between rows and below them the
    // place makes no difference, since the list sorts itself.
    if (parent.isValid() || !data || !data->hasUrls())
        return false;
    return (supportedDropActions() & action) != 0;
}

bool RenameTableModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                    int column, const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent) || !m_acceptDrop)
        return false;
    return m_acceptDrop(data->urls());
}
