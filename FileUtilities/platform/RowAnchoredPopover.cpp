#include "RowAnchoredPopover.h"

#include "LookColors.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int cornerRadius = 10;
constexpr int arrowHalfWidth = 9;
constexpr int border = 1;

bool horizontal(Qt::Edge edge)
{
    return edge == Qt::LeftEdge || edge == Qt::RightEdge;
}

Qt::Edge opposite(Qt::Edge edge)
{
    switch (edge) {
    case Qt::LeftEdge:
        return Qt::RightEdge;
    case Qt::RightEdge:
        return Qt::LeftEdge;
    case Qt::TopEdge:
        return Qt::BottomEdge;
    case Qt::BottomEdge:
        return Qt::TopEdge;
    }
    return Qt::RightEdge;
}

// The popover's frame against `anchor` on `edge`, centred on the anchor across that edge.
QRect placed(const QRect &anchor, QSize size, Qt::Edge edge)
{
    const int top = anchor.top() + (anchor.height() - size.height()) / 2;
    const int left = anchor.left() + (anchor.width() - size.width()) / 2;
    switch (edge) {
    case Qt::LeftEdge:
        return {QPoint(anchor.left() - size.width(), top), size};
    case Qt::RightEdge:
        return {QPoint(anchor.right() + 1, top), size};
    case Qt::TopEdge:
        return {QPoint(left, anchor.top() - size.height()), size};
    case Qt::BottomEdge:
        return {QPoint(left, anchor.bottom() + 1), size};
    }
    return {};
}

// How far `frame` reaches past `screen` along the axis that `edge` moves it on.
int overflow(const QRect &frame, const QRect &screen, Qt::Edge edge)
{
    if (horizontal(edge))
        return qMax(0, screen.left() - frame.left()) + qMax(0, frame.right() - screen.right());
    return qMax(0, screen.top() - frame.top()) + qMax(0, frame.bottom() - screen.bottom());
}

int clampedStart(int start, int length, int screenStart, int screenLength)
{
    if (length >= screenLength)
        return screenStart;
    return qBound(screenStart, start, screenStart + screenLength - length);
}

// Screen readers announce a dialog by its name when the focus enters it, which tells the
// user where they are; a plain widget would be passed over in silence.
QAccessibleInterface *popoverAccessible(const QString &className, QObject *object)
{
    if (className == QLatin1String("RowAnchoredPopover") && object && object->isWidgetType())
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Dialog);
    return nullptr;
}

void installAccessibleRole()
{
    static const bool installed = [] {
        QAccessible::installFactory(popoverAccessible);
        return true;
    }();
    Q_UNUSED(installed);
}

bool takesTabFocus(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() && widget->isEnabled() &&
           widget->isVisible();
}

} // namespace

RowAnchoredPopover::RowAnchoredPopover(QWidget *content, QWidget *parent)
    : QFrame(parent), m_content(content), m_owner(parent)
{
    installAccessibleRole();
    setObjectName(QStringLiteral("RowAnchoredPopover"));
    setAttribute(Qt::WA_DeleteOnClose);
    hide();
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addWidget(m_content);
    setEdge(Qt::RightEdge);
    if (m_content && accessibleName().isEmpty())
        setAccessibleName(m_content->accessibleName());
    if (parent) {
        // A popover whose screen went away has nothing left to speak to.
        connect(parent, &QObject::destroyed, this,
                [self = QPointer<RowAnchoredPopover>(this)] { delete self.data(); });
    }
    // Clicks and keys anywhere in the window, and the owner going out of sight, close it.
    qApp->installEventFilter(this);
}

void RowAnchoredPopover::setEdge(Qt::Edge edge)
{
    m_edge = edge;
    // The notch sits on the popover's side that faces the row.
    const int left = border + (edge == Qt::RightEdge ? arrowDepth : 0);
    const int right = border + (edge == Qt::LeftEdge ? arrowDepth : 0);
    const int top = border + (edge == Qt::BottomEdge ? arrowDepth : 0);
    const int bottom = border + (edge == Qt::TopEdge ? arrowDepth : 0);
    layout()->setContentsMargins(left, top, right, bottom);
}

void RowAnchoredPopover::adoptWindowOf(QWidget *view)
{
    QWidget *host = view ? view->window() : (m_owner ? m_owner->window() : nullptr);
    if (!host || host == this || parentWidget() == host)
        return;
    setParent(host);
}

void RowAnchoredPopover::showRelativeToRect(const QRect &rect, QWidget *view,
                                            Qt::Edge preferredEdge)
{
    adoptWindowOf(view);
    QWidget *host = parentWidget();
    if (QWidget *focus = QApplication::focusWidget(); focus && !holds(focus))
        m_returnFocus = focus;

    QRect local = rect;
    if (view) {
        // A row wider than its list is anchored by the part that can be seen.
        const QRect visible = rect.intersected(view->rect());
        if (!visible.isEmpty())
            local = visible;
    }
    QRect anchor = local;
    if (view && host)
        anchor = QRect(view->mapTo(host, local.topLeft()), local.size());
    else if (view)
        anchor = QRect(view->mapToGlobal(local.topLeft()), local.size());
    QRect available;
    if (host) {
        available = host->rect();
    } else if (QScreen *screen = view ? view->screen() : QGuiApplication::primaryScreen()) {
        available = screen->availableGeometry();
    }

    // The notch adds to the side it stands on, so the size depends on the edge.
    const auto sizeOn = [this](Qt::Edge on) {
        setEdge(on);
        adjustSize();
        return this->size();
    };
    const auto missing = [&](Qt::Edge on) {
        return overflow(placed(anchor, sizeOn(on), on), available, on);
    };
    Qt::Edge edge = preferredEdge;
    if (available.isValid()) {
        const int wanted = missing(edge);
        const int other = missing(opposite(edge));
        if (wanted > 0 && other < wanted)
            edge = opposite(edge);
        // A row as wide as its list seldom leaves room at either end; held in the window,
        // the popover would cover the row and point at nothing. Below or above the row
        // does better, when that fits.
        if (wanted > 0 && other > 0) {
            const Qt::Edge across = horizontal(preferredEdge) ? Qt::BottomEdge : Qt::RightEdge;
            for (const Qt::Edge candidate : {across, opposite(across)}) {
                if (missing(candidate) == 0) {
                    edge = candidate;
                    break;
                }
            }
        }
    }
    const QSize size = sizeOn(edge);

    QRect frame = placed(anchor, size, edge);
    if (available.isValid()) {
        frame.moveLeft(
            clampedStart(frame.left(), frame.width(), available.left(), available.width()));
        frame.moveTop(
            clampedStart(frame.top(), frame.height(), available.top(), available.height()));
    }
    // The notch points at the middle of the row, as far as the rounded corners allow.
    const int along =
        horizontal(edge) ? anchor.center().y() - frame.top() : anchor.center().x() - frame.left();
    const int length = horizontal(edge) ? frame.height() : frame.width();
    const int margin = cornerRadius + arrowHalfWidth;
    m_arrowCenter = length > 2 * margin ? qBound(margin, along, length - margin) : length / 2;

    setGeometry(frame);
    // Clicks beside the rounded corners and the notch reach what lies behind.
    setMask(QRegion(outline().toFillPolygon().toPolygon()));
    raise();
    show();
    update();
    focusFirstControl();
    QAccessibleEvent opened(this, QAccessible::DialogStart);
    QAccessible::updateAccessibility(&opened);
}

bool RowAnchoredPopover::holds(const QObject *object) const
{
    for (const QObject *at = object; at; at = at->parent()) {
        if (at == this)
            return true;
    }
    return false;
}

void RowAnchoredPopover::focusFirstControl()
{
    for (QWidget *next = nextInFocusChain(); next && next != this;
         next = next->nextInFocusChain()) {
        if (holds(next) && takesTabFocus(next)) {
            next->setFocus(Qt::PopupFocusReason);
            return;
        }
    }
    // Nothing inside takes the keyboard: the popover itself does, so Escape reaches it.
    setFocus(Qt::PopupFocusReason);
}

bool RowAnchoredPopover::focusNextPrevChild(bool next)
{
    if (!isVisible()) {
        // Hiding moves the focus on from here; it goes back where it came from instead.
        giveFocusBack();
        return true;
    }
    // Tab goes round the popover's own controls: leaving them would leave it open behind
    // the focus.
    QWidget *start = QApplication::focusWidget();
    if (!start || !holds(start))
        start = this;
    QWidget *at = start;
    do {
        at = next ? at->nextInFocusChain() : at->previousInFocusChain();
        if (at != this && holds(at) && takesTabFocus(at)) {
            at->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (at && at != start);
    return true;
}

void RowAnchoredPopover::giveFocusBack()
{
    QWidget *focus = QApplication::focusWidget();
    if (focus && !holds(focus))
        return; // the user has already gone elsewhere, by a click
    if (m_returnFocus && m_returnFocus->isVisible())
        m_returnFocus->setFocus(Qt::PopupFocusReason);
    else if (focus)
        focus->clearFocus();
}

QPainterPath RowAnchoredPopover::outline() const
{
    const QRectF all = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QRectF body = all;
    QPolygonF notch;
    const qreal c = m_arrowCenter;
    switch (m_edge) {
    case Qt::RightEdge: // the notch on the popover's left side
        body.setLeft(all.left() + arrowDepth);
        notch << QPointF(body.left(), c - arrowHalfWidth) << QPointF(all.left(), c)
              << QPointF(body.left(), c + arrowHalfWidth);
        break;
    case Qt::LeftEdge:
        body.setRight(all.right() - arrowDepth);
        notch << QPointF(body.right(), c - arrowHalfWidth) << QPointF(all.right(), c)
              << QPointF(body.right(), c + arrowHalfWidth);
        break;
    case Qt::BottomEdge:
        body.setTop(all.top() + arrowDepth);
        notch << QPointF(c - arrowHalfWidth, body.top()) << QPointF(c, all.top())
              << QPointF(c + arrowHalfWidth, body.top());
        break;
    case Qt::TopEdge:
        body.setBottom(all.bottom() - arrowDepth);
        notch << QPointF(c - arrowHalfWidth, body.bottom()) << QPointF(c, all.bottom())
              << QPointF(c + arrowHalfWidth, body.bottom());
        break;
    }
    QPainterPath shape;
    shape.addRoundedRect(body, cornerRadius, cornerRadius);
    QPainterPath arrow;
    arrow.addPolygon(notch);
    arrow.closeSubpath();
    return shape.united(arrow);
}

void RowAnchoredPopover::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Look::color(Look::Color::PopoverBorder), border));
    painter.setBrush(Look::color(Look::Color::PopoverGround));
    painter.drawPath(outline());
}

void RowAnchoredPopover::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        close();
        return;
    }
    QFrame::keyPressEvent(event);
}

void RowAnchoredPopover::closeEvent(QCloseEvent *event)
{
    giveFocusBack();
    QFrame::closeEvent(event);
}

void RowAnchoredPopover::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    // Every way out passes here: Escape, a click outside, the owner's close().
    if (m_closedSent)
        return;
    m_closedSent = true;
    QAccessibleEvent gone(this, QAccessible::DialogEnd);
    QAccessible::updateAccessibility(&gone);
    Q_EMIT closed();
}

bool RowAnchoredPopover::eventFilter(QObject *watched, QEvent *event)
{
    if (!isVisible())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin: {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (!widget || widget->window() != window())
            break; // an alert of the popover's own, or another window
        if (!holds(widget)) {
            close(); // the click goes on to what it landed on
            break;
        }
        const auto *mouse = dynamic_cast<const QMouseEvent *>(event);
        if (widget == this && mouse && !outline().contains(QPointF(mouse->position().toPoint()))) {
            close();
            return true;
        }
        break;
    }
    case QEvent::KeyPress: {
        // Escape closes the popover wherever in its window the focus stands.
        auto *widget = qobject_cast<QWidget *>(watched);
        const auto *key = static_cast<const QKeyEvent *>(event);
        if (key->key() == Qt::Key_Escape && widget && widget->window() == window()) {
            close();
            return true;
        }
        break;
    }
    case QEvent::Hide:
        // The screen that opened it went out of sight: another tool, another step.
        if (watched == m_owner.data() && m_owner != parentWidget())
            close();
        break;
    default:
        break;
    }
    return false;
}
