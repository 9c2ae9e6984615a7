#pragma once

#include <QListView>

class BRDuplicateFilesViewDelegate;

// The results list. A click on a row, or Enter or Space on the current one, opens that
// group's detail popover, and scrolling closes it, so at most one is open and it never
// floats beside a row that moved away. The arrows move the current row, which the rows
// paint with a ring while the list has the focus.
class BRDuplicateTableView : public QListView
{
    Q_OBJECT

public:
    explicit BRDuplicateTableView(QWidget *parent = nullptr);

    void setDuplicateDelegate(BRDuplicateFilesViewDelegate *delegate)
    {
        m_duplicateDelegate = delegate;
    }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void openRow(int row);

    BRDuplicateFilesViewDelegate *m_duplicateDelegate = nullptr;
};
