#pragma once

#include <QFrame>
#include <QPointer>

class QPainterPath;

// A transient panel that opens beside a row of a list, with a notch pointing at it. It
// closes on a click outside, on Escape, or when its owner closes it, and deletes itself
// on closing.
//
// It lives inside the row's window as an overlay child rather than as a popup window of
// its own: Qt leaves popup windows out of the accessibility tree, so a screen reader could
// neither find it nor read what it holds. Opening moves the keyboard focus into it, Tab
// stays inside it, and closing gives the focus back to where it was, normally the list.
class RowAnchoredPopover : public QFrame
{
    Q_OBJECT

public:
    // Takes ownership of `content`. `parent` is the owner: the popover goes when it goes or
    // hides, and stands in `parent`'s window until it is shown against a row.
    explicit RowAnchoredPopover(QWidget *content, QWidget *parent = nullptr);

    QWidget *content() const { return m_content; }

    // Shows the popover against `rect`, given in `view`'s coordinates, on the side of it that
    // `preferredEdge` names (Qt::RightEdge: to its right). When that side has no room in the
    // window, it opens on the opposite side; it is always kept inside the window.
    void showRelativeToRect(const QRect &rect, QWidget *view, Qt::Edge preferredEdge);

    // The side of the rectangle the popover stands on.
    Qt::Edge shownEdge() const { return m_edge; }

    static constexpr int arrowDepth = 9;

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void setEdge(Qt::Edge edge);
    void adoptWindowOf(QWidget *view);
    void focusFirstControl();
    void giveFocusBack();
    bool holds(const QObject *object) const;
    QPainterPath outline() const;

    QWidget *m_content;
    QPointer<QWidget> m_owner;
    QPointer<QWidget> m_returnFocus;
    Qt::Edge m_edge = Qt::RightEdge;
    int m_arrowCenter = 0; // along the side that carries the notch
    bool m_closedSent = false;
};
