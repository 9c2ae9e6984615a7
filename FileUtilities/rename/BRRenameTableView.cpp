#include "BRRenameTableView.h"

#include "BRRenameTableCustomClipView.h"
#include "BRRenameTableRowDelegate.h"
#include "BRRenameTableViewCell.h"
#include "BRRenameViewDelegate.h"
#include "RenameRowStyle.h"
#include "RenameTableModel.h"
#include "ThumbnailCache.h"
#include "ThumbnailLoader.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

BRRenameTableView::BRRenameTableView(QWidget *parent)
    : QListView(parent), m_model(new RenameTableModel(this)),
      m_thumbnails(std::make_unique<ThumbnailLoader>()),
      m_thumbnailCache(std::make_shared<ThumbnailCache>()),
      m_rowDelegate(new BRRenameTableRowDelegate(*m_thumbnails, m_thumbnailCache, this))
{
    setObjectName(QStringLiteral("renameTableView"));
    setViewport(new BRRenameTableCustomClipView(this));
    // Every row has the same height: the list lays out ten thousand rows without asking
    // each one.
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    // A click on the list takes the keyboard, which ends the typing of a row's name; Tab
    // reaches it too, for the arrows, Enter and Delete.
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QCoreApplication::translate("BRRenameTableView", "Files to rename"));
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    setDropIndicatorShown(true);
    setItemDelegate(m_rowDelegate);
    setModel(m_model);

    connect(m_model, &QAbstractItemModel::modelReset, this,
            &BRRenameTableView::refreshAfterModelChange);
    connect(m_model, &QAbstractItemModel::layoutChanged, this,
            &BRRenameTableView::refreshAfterModelChange);
    connect(m_model, &QAbstractItemModel::rowsInserted, this,
            &BRRenameTableView::refreshAfterModelChange);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this,
            &BRRenameTableView::refreshAfterModelChange);
    connect(m_model, &QAbstractItemModel::dataChanged, this,
            &BRRenameTableView::refreshAfterModelChange);
    connect(m_thumbnails.get(), &ThumbnailLoader::imageReady, this,
            &BRRenameTableView::thumbnailReady);
}

BRRenameTableView::~BRRenameTableView() = default;

void BRRenameTableView::setRenameDelegate(BRRenameViewDelegate *delegate)
{
    m_renameDelegate = delegate;
    for (const LiveCell &live : m_cells) {
        if (live.cell)
            live.cell->setDelegate(delegate);
    }
}

int BRRenameTableView::rowForView(QWidget *view) const
{
    if (!view)
        return -1;
    for (const LiveCell &live : m_cells) {
        if (live.cell && !live.key.isEmpty() &&
            (live.cell == view || live.cell->isAncestorOf(view)))
            return live.row;
    }
    return -1;
}

QRect BRRenameTableView::rectForRow(int row) const
{
    if (row < 0 || row >= m_model->rowCount())
        return {};
    const QRect rect = visualRect(m_model->index(row, 0));
    if (!rect.isValid() || !viewport()->rect().intersects(rect))
        return {};
    return rect.translated(viewport()->pos());
}

QRect BRRenameTableView::popoverAnchorForRow(int row) const
{
    const QRect rect = rectForRow(row);
    // The popover stands to the left of the row's new name, over the pictures and old names:
    // on the row's own control it would cover the new names of the rows around it.
    return rect.isEmpty() ? QRect() : RenameRowStyle::geometry(rect).newName;
}

BRRenameTableViewCell *BRRenameTableView::cellForRow(int row) const
{
    for (const LiveCell &live : m_cells) {
        if (live.cell && !live.key.isEmpty() && live.row == row && row >= 0)
            return live.cell;
    }
    return nullptr;
}

void BRRenameTableView::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    QListView::mousePressEvent(event);
    if (index.isValid() && m_renameDelegate)
        m_renameDelegate->showPopOver(index.row());
}

void BRRenameTableView::keyPressEvent(QKeyEvent *event)
{
    // Keys that a row's own field lets pass (Return after typing a name) are not the list's.
    const QModelIndex current = currentIndex();
    if (hasFocus() && current.isValid() && event->modifiers() == Qt::NoModifier) {
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (m_renameDelegate)
                m_renameDelegate->showPopOver(current.row());
            event->accept();
            return;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            Q_EMIT rowRemovalRequested(current.row());
            event->accept();
            return;
        default:
            break;
        }
    }
    QListView::keyPressEvent(event);
}

void BRRenameTableView::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    if (!currentIndex().isValid() && m_model->rowCount() > 0)
        setCurrentIndex(m_model->index(0, 0));
    viewport()->update();
}

void BRRenameTableView::mouseMoveEvent(QMouseEvent *event)
{
    QListView::mouseMoveEvent(event);
    m_mousePosition = event->position().toPoint();
    m_mouseInside = true;
    updateCells();
}

void BRRenameTableView::wheelEvent(QWheelEvent *event)
{
    QListView::wheelEvent(event);
    if (m_renameDelegate)
        m_renameDelegate->closePopOver();
}

void BRRenameTableView::dragEnterEvent(QDragEnterEvent *event)
{
    // The cell would hide the drop marker of the row it covers.
    m_mouseInside = false;
    updateCells();
    QListView::dragEnterEvent(event);
}

bool BRRenameTableView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Leave) {
        m_mouseInside = false;
        updateCells();
    }
    return QListView::viewportEvent(event);
}

void BRRenameTableView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    // Another row now lies under the mouse, which has not moved.
    updateCells();
}

void BRRenameTableView::updateGeometries()
{
    QListView::updateGeometries();
    placeCells();
}

int BRRenameTableView::hoveredRow() const
{
    if (!m_mouseInside)
        return -1;
    const QModelIndex index = indexAt(m_mousePosition);
    return index.isValid() ? index.row() : -1;
}

BRRenameTableView::LiveCell *BRRenameTableView::editingCell()
{
    for (LiveCell &live : m_cells) {
        if (live.cell && !live.key.isEmpty() && live.cell->isEditing())
            return &live;
    }
    return nullptr;
}

BRRenameTableViewCell *BRRenameTableView::makeCell()
{
    auto *cell = new BRRenameTableViewCell(viewport());
    cell->setDelegate(m_renameDelegate);
    cell->hide();
    // The change is looked at once the focus has settled, outside the focus event.
    connect(cell, &BRRenameTableViewCell::editingChanged, this, [this] {
        QMetaObject::invokeMethod(this, &BRRenameTableView::updateCells, Qt::QueuedConnection);
    });
    return cell;
}

void BRRenameTableView::updateCells()
{
    const int hover = hoveredRow();
    LiveCell *editing = editingCell();
    const bool hoverOnEditing = editing && hover >= 0 && editing->row == hover;

    LiveCell *hoverCell = nullptr;
    if (hover >= 0 && !hoverOnEditing) {
        // A cell already over that row keeps it, so nothing is filled again.
        for (LiveCell &live : m_cells) {
            if (&live != editing && live.cell && !live.key.isEmpty() && live.row == hover)
                hoverCell = &live;
        }
        for (LiveCell &live : m_cells) {
            if (!hoverCell && &live != editing)
                hoverCell = &live;
        }
    }
    for (LiveCell &live : m_cells) {
        if (&live != editing && &live != hoverCell && !live.key.isEmpty())
            releaseCell(live);
    }
    if (hoverCell) {
        if (!hoverCell->cell)
            hoverCell->cell = makeCell();
        if (hoverCell->key.isEmpty() || hoverCell->row != hover)
            fillCell(*hoverCell, hover);
        hoverCell->cell->setHovered(true);
    }
    if (editing)
        editing->cell->setHovered(hoverOnEditing);
    placeCells();
}

void BRRenameTableView::refreshAfterModelChange()
{
    // Rows are found again by their keys: after a reload the same file may sit elsewhere,
    // and a file that left the list takes its cell with it.
    for (LiveCell &live : m_cells) {
        if (!live.cell || live.key.isEmpty())
            continue;
        const int row = m_model->rowOfKey(live.key);
        if (row < 0)
            releaseCell(live);
        else
            fillCell(live, row);
    }
    updateCells();
}

void BRRenameTableView::fillCell(LiveCell &live, int row)
{
    const QModelIndex index = m_model->index(row, 0);
    live.key = index.data(RenameTableModel::KeyRole).toString();
    live.row = live.key.isEmpty() ? -1 : row;
    live.path = index.data(RenameTableModel::SourcePathRole).toString();
    BRRenameTableViewCell *cell = live.cell;
    cell->setDelegate(m_renameDelegate);
    cell->setSourceFileName(index.data(Qt::DisplayRole).toString());
    const QVariant destination = index.data(RenameTableModel::DestinationRole);
    cell->setDestinationName(destination.isValid() ? std::optional<QString>(destination.toString())
                                                   : std::nullopt,
                             index.data(RenameTableModel::SuffixRole).toString(),
                             index.data(RenameTableModel::EditedRole).toBool());
    cell->setThumbnail(m_rowDelegate->thumbnailFor(live.path, devicePixelRatioF()));
    cell->setMark(static_cast<RowMark>(index.data(RenameTableModel::MarkRole).toInt()),
                  index.data(RenameTableModel::MarkTextRole).toString());
}

void BRRenameTableView::releaseCell(LiveCell &live)
{
    if (!live.cell)
        return;
    if (live.cell->isEditing()) {
        // The row is gone, and what was typed for it with it.
        live.cell->destFileNameLabel()->setModified(false);
        live.cell->destFileNameLabel()->clearFocus();
    }
    live.cell->setHovered(false);
    live.cell->hide();
    live.key.clear();
    live.path.clear();
    live.row = -1;
}

void BRRenameTableView::placeCells()
{
    for (const LiveCell &live : m_cells) {
        if (!live.cell || live.key.isEmpty())
            continue;
        const QRect rect = visualRect(m_model->index(live.row, 0));
        if (!rect.isValid()) {
            live.cell->hide();
            continue;
        }
        live.cell->setGeometry(rect);
        live.cell->show();
    }
}

void BRRenameTableView::thumbnailReady(const QString &path)
{
    viewport()->update();
    for (const LiveCell &live : m_cells) {
        if (live.cell && !live.key.isEmpty() && live.path == path)
            live.cell->setThumbnail(m_rowDelegate->thumbnailFor(path, devicePixelRatioF()));
    }
}
