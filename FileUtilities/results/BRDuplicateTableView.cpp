#include "BRDuplicateTableView.h"

#include "BRDuplicateFilesViewDelegate.h"
#include "BRDuplicateTableViewCustomClipView.h"
#include "DuplicateTableModel.h"

#include <QMouseEvent>

BRDuplicateTableView::BRDuplicateTableView(QWidget *parent) : QListView(parent)
{
    setViewport(new BRDuplicateTableViewCustomClipView(this));
    // Every group row has the same height, and a placeholder stands alone: uniform sizes
    // let the list lay out a hundred thousand rows without asking each one.
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setMouseTracking(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void BRDuplicateTableView::mousePressEvent(QMouseEvent *event)
{
    QListView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!index.isValid() || !m_duplicateDelegate)
        return;
    m_duplicateDelegate->closePopOver();
    m_duplicateDelegate->showPopOverView(index.row());
}

void BRDuplicateTableView::wheelEvent(QWheelEvent *event)
{
    QListView::wheelEvent(event);
    if (m_duplicateDelegate)
        m_duplicateDelegate->closePopOver();
}

void BRDuplicateTableView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    // Dragging the scroll bar or paging moves the rows as a wheel does.
    if (m_duplicateDelegate && (dx != 0 || dy != 0))
        m_duplicateDelegate->closePopOver();
}
