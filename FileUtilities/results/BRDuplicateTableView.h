#pragma once

#include <QListView>

class BRDuplicateFilesViewDelegate;

// The results list. A click on a row opens that group's detail popover, and scrolling
// closes it, so at most one is open and it never floats beside a row that moved away.
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
    void wheelEvent(QWheelEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    BRDuplicateFilesViewDelegate *m_duplicateDelegate = nullptr;
};
