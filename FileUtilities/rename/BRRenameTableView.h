#pragma once

#include <QListView>
#include <QPoint>
#include <QString>

#include <memory>

class BRRenameTableRowDelegate;
class BRRenameTableViewCell;
class BRRenameViewDelegate;
class RenameTableModel;
class ThumbnailCache;
class ThumbnailLoader;

// The rename list. Rows are painted; the row under the mouse gets a live cell laid over
// it, so that its remove control, its popover control and its name field answer, and a
// row whose name is being typed keeps its cell until the typing ends. A click on a row
// opens its file's popover and a turn of the wheel closes it.
//
// The keyboard does the same: the arrows move the current row, which is painted with a
// ring while the list has the focus; Enter opens its popover, Delete asks for its removal.
class BRRenameTableView : public QListView
{
    Q_OBJECT

public:
    explicit BRRenameTableView(QWidget *parent = nullptr);
    ~BRRenameTableView() override;

    // The rename screen; the live cells report to it as well.
    void setRenameDelegate(BRRenameViewDelegate *delegate);
    BRRenameViewDelegate *renameDelegate() const { return m_renameDelegate; }

    // The list's own model; the rename screen feeds it its lists.
    RenameTableModel *renameModel() const { return m_model; }

    // The row of the live cell that holds `view`, or -1.
    int rowForView(QWidget *view) const;
    // A row's rectangle in this view's coordinates; empty when the row is not on screen.
    QRect rectForRow(int row) const;
    // What a row's popover points at (the new name), in this view's coordinates; empty when
    // the row is not on screen.
    QRect popoverAnchorForRow(int row) const;
    // The live cell over `row`, or null when the row is only painted.
    BRRenameTableViewCell *cellForRow(int row) const;

Q_SIGNALS:
    // Delete on the current row: the rename screen takes the file off the list.
    void rowRemovalRequested(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;

private:
    struct LiveCell
    {
        BRRenameTableViewCell *cell = nullptr;
        QString key; // empty while the cell is unused
        QString path;
        int row = -1;
    };

    void updateCells();
    void refreshAfterModelChange();
    void fillCell(LiveCell &live, int row);
    void releaseCell(LiveCell &live);
    void placeCells();
    LiveCell *editingCell();
    BRRenameTableViewCell *makeCell();
    int hoveredRow() const;
    void thumbnailReady(const QString &path);

    RenameTableModel *m_model;
    std::unique_ptr<ThumbnailLoader> m_thumbnails;
    std::shared_ptr<ThumbnailCache> m_thumbnailCache;
    BRRenameTableRowDelegate *m_rowDelegate;
    BRRenameViewDelegate *m_renameDelegate = nullptr;
    // One cell follows the mouse; a second keeps a row whose name is being typed.
    LiveCell m_cells[2];
    QPoint m_mousePosition;
    bool m_mouseInside = false;
};
