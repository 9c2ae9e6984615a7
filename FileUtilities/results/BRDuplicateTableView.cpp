#include "BRDuplicateTableView.h"

#include "BRDuplicateFilesViewDelegate.h"
#include "BRDuplicateTableViewCustomClipView.h"
#include "DuplicateTableModel.h"

#include <QKeyEvent>
#include <QMouseEvent>

BRDuplicateTableView::BRDuplicateTableView(QWidget *parent) : QListView(parent)
{
    setViewport(new BRDuplicateTableViewCustomClipView(this));
    // Every group row has the same height, and a placeholder stands alone: uniform sizes
    // let the list lay out a hundred thousand rows without asking each one.
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    // The list takes the keyboard like any other control: Tab reaches it, the arrows move
    // its current row and Enter opens it.
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setMouseTracking(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void BRDuplicateTableView::mousePressEvent(QMouseEvent *event)
{
    QListView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid())
        openRow(index.row());
}

void BRDuplicateTableView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (hasFocus() && currentIndex().isValid() && event->modifiers() == Qt::NoModifier) {
            openRow(currentIndex().row());
            event->accept();
            return;
        }
        break;
    default:
        break;
    }
    QListView::keyPressEvent(event);
}

void BRDuplicateTableView::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    // Coming back to the list, the keyboard finds the row it left, or the first.
    if (!currentIndex().isValid() && model() && model()->rowCount() > 0)
        setCurrentIndex(model()->index(0, 0));
    viewport()->update();
}

void BRDuplicateTableView::openRow(int row)
{
    if (!m_duplicateDelegate)
        return;
    m_duplicateDelegate->closePopOver();
    m_duplicateDelegate->showPopOverView(row);
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
