#pragma once

#include <QList>
#include <QScrollArea>

class BRDuplicateFilePreviewDelegate;
class BRDuplicateFilePreviewTableViewCell;
class QVBoxLayout;

// The list of a group's copies in the detail popover. A group has few copies, so each row
// is a live cell with its own delete button. A click on a row, off its button, asks the
// preview delegate to show that copy; rows are never selected.
class BRDuplicatePopOverTableView : public QScrollArea
{
    Q_OBJECT

public:
    explicit BRDuplicatePopOverTableView(QWidget *parent = nullptr);

    void setPreviewDelegate(BRDuplicateFilePreviewDelegate *delegate)
    {
        m_previewDelegate = delegate;
    }
    BRDuplicateFilePreviewDelegate *previewDelegate() const { return m_previewDelegate; }

    // A new cell owned by the list, to be filled and handed back through setRows.
    BRDuplicateFilePreviewTableViewCell *makeView();
    // Replaces the rows. The old cells go after the current event, since one of them may be
    // the sender of what led to the reload.
    void setRows(const QList<BRDuplicateFilePreviewTableViewCell *> &cells);

    int numberOfRows() const { return static_cast<int>(m_rows.size()); }
    BRDuplicateFilePreviewTableViewCell *viewAtRow(int row) const;
    // The row that holds `view` or one of its ancestors, or -1.
    int rowForView(const QWidget *view) const;
    // The row under `point` of the viewport, or -1.
    int rowAtPoint(const QPoint &point) const;
    // Gives the keyboard to `row` and scrolls it into view.
    void focusRow(int row);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    BRDuplicateFilePreviewDelegate *m_previewDelegate = nullptr;
    QWidget *m_rowContainer;
    QVBoxLayout *m_rowLayout;
    QList<BRDuplicateFilePreviewTableViewCell *> m_rows;
};
