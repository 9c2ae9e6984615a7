#include "BRDuplicatePopOverTableView.h"

#include "BRDuplicateFilePreviewDelegate.h"
#include "BRDuplicateFilePreviewTableCustomClipView.h"
#include "BRDuplicateFilePreviewTableViewCell.h"

#include <QApplication>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QVBoxLayout>

BRDuplicatePopOverTableView::BRDuplicatePopOverTableView(QWidget *parent)
    : QScrollArea(parent), m_rowContainer(new QWidget(this)),
      m_rowLayout(new QVBoxLayout(m_rowContainer))
{
    setObjectName(QStringLiteral("dupePreviewTableView"));
    setAccessibleName(QCoreApplication::translate("BRDuplicatePopOverTableView", "Copies"));
    // The rows take the focus, one by one; the list around them does not.
    setFocusPolicy(Qt::NoFocus);
    setViewport(new BRDuplicateFilePreviewTableCustomClipView(this));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_rowLayout->setContentsMargins(0, 0, 0, 0);
    m_rowLayout->setSpacing(0);
    m_rowLayout->addStretch();
    setWidgetResizable(true);
    setWidget(m_rowContainer);
    // The scroll area fills its widget; the rows stand on the popover itself.
    m_rowContainer->setAutoFillBackground(false);
    // Room for a full row beside the scroll bar, so no row is ever cut at the side.
    setFixedWidth(BRDuplicateFilePreviewTableViewCell::preferredWidth +
                  verticalScrollBar()->sizeHint().width());
}

BRDuplicateFilePreviewTableViewCell *BRDuplicatePopOverTableView::makeView()
{
    auto *cell = new BRDuplicateFilePreviewTableViewCell(m_rowContainer);
    cell->hide();
    connect(cell, &BRDuplicateFilePreviewTableViewCell::revealRequested, this, [this, cell] {
        if (m_previewDelegate)
            m_previewDelegate->openURL(rowForView(cell));
    });
    connect(cell, &BRDuplicateFilePreviewTableViewCell::stepRequested, this,
            [this, cell](int delta) { focusRow(rowForView(cell) + delta); });
    return cell;
}

void BRDuplicatePopOverTableView::setRows(const QList<BRDuplicateFilePreviewTableViewCell *> &cells)
{
    // The keyboard stays on the same place in the list when its rows are made anew, as
    // when the copy it was on has gone.
    const int focusedRow = rowForView(QApplication::focusWidget());
    for (BRDuplicateFilePreviewTableViewCell *old : std::as_const(m_rows)) {
        m_rowLayout->removeWidget(old);
        old->hide();
        old->deleteLater();
    }
    m_rows = cells;
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        BRDuplicateFilePreviewTableViewCell *cell = m_rows.at(row);
        cell->setParent(m_rowContainer);
        m_rowLayout->insertWidget(static_cast<int>(row), cell);
        cell->show();
    }
    if (focusedRow >= 0)
        focusRow(std::min(focusedRow, static_cast<int>(m_rows.size()) - 1));
}

void BRDuplicatePopOverTableView::focusRow(int row)
{
    BRDuplicateFilePreviewTableViewCell *cell = viewAtRow(row);
    if (!cell)
        return;
    cell->setFocus(Qt::OtherFocusReason);
    ensureWidgetVisible(cell);
}

BRDuplicateFilePreviewTableViewCell *BRDuplicatePopOverTableView::viewAtRow(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row) : nullptr;
}

int BRDuplicatePopOverTableView::rowForView(const QWidget *view) const
{
    for (; view; view = view->parentWidget()) {
        for (qsizetype row = 0; row < m_rows.size(); ++row) {
            if (m_rows.at(row) == view)
                return static_cast<int>(row);
        }
    }
    return -1;
}

int BRDuplicatePopOverTableView::rowAtPoint(const QPoint &point) const
{
    const QPoint inRows = m_rowContainer->mapFrom(viewport(), point);
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row)->geometry().contains(inRows))
            return static_cast<int>(row);
    }
    return -1;
}

void BRDuplicatePopOverTableView::mousePressEvent(QMouseEvent *event)
{
    // Presses on a row's labels reach here through the row; the delete button keeps its own.
    const int row = rowAtPoint(event->position().toPoint());
    QScrollArea::mousePressEvent(event);
    if (row == -1)
        return;
    event->accept();
    if (m_previewDelegate)
        m_previewDelegate->openURL(row);
}
