#pragma once

#include <QFrame>

class QPainterPath;

// A transient panel that opens beside a row of a list, with a notch pointing at it. It
// closes on a click outside, on Escape, or when its owner closes it, and deletes itself
// on closing.
class RowAnchoredPopover : public QFrame
{
    Q_OBJECT

public:
    // Takes ownership of `content`.
    explicit RowAnchoredPopover(QWidget *content, QWidget *parent = nullptr);

    QWidget *content() const { return m_content; }

    // Shows the popover against `rect`, given in `view`'s coordinates, on the side of it that
    // `preferredEdge` names (Qt::RightEdge: to its right). When that side has no room on the
    // screen, it opens on the opposite side; it is always kept on the screen.
    void showRelativeToRect(const QRect &rect, QWidget *view, Qt::Edge preferredEdge);

    // The side of the rectangle the popover stands on.
    Qt::Edge shownEdge() const { return m_edge; }

    static constexpr int arrowDepth = 9;

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setEdge(Qt::Edge edge);
    QPainterPath outline() const;

    QWidget *m_content;
    Qt::Edge m_edge = Qt::RightEdge;
    int m_arrowCenter = 0; // along the side that carries the notch
};
