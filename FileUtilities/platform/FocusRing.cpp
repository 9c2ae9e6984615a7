#include "FocusRing.h"

#include "Look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace {

constexpr int ringMargin = 3;

// The ring itself: a frame drawn over the window, which lets every click through.
class RingWidget final : public QWidget
{
public:
    explicit RingWidget(QWidget *parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        setObjectName(QStringLiteral("focusRing"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Look::color(Look::Color::DuplicatesAccent), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
    }
};

bool showsOwnFocus(const QWidget *widget)
{
    return widget->property("drawsOwnFocus").toBool() ||
           qobject_cast<const QAbstractItemView *>(widget) != nullptr;
}

} // namespace

FocusRing::FocusRing(QObject *parent) : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::follow);
}

FocusRing::~FocusRing()
{
    delete m_ring;
}

void FocusRing::follow(QWidget *, QWidget *now)
{
    if (m_target)
        m_target->removeEventFilter(this);
    m_target = nullptr;
    // Focus that a click gave is not marked: the pointer shows where the user is.
    const bool byPointer = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (!now || byPointer || showsOwnFocus(now) || !now->window()) {
        if (m_ring)
            m_ring->hide();
        return;
    }
    m_target = now;
    m_target->installEventFilter(this);
    QWidget *window = now->window();
    if (!m_ring || m_ring->parentWidget() != window) {
        delete m_ring;
        m_ring = new RingWidget(window);
    }
    place();
}

void FocusRing::place()
{
    if (!m_target || !m_ring)
        return;
    if (!m_target->isVisible()) {
        m_ring->hide();
        return;
    }
    QWidget *window = m_ring->parentWidget();
    const QRect around(m_target->mapTo(window, QPoint(0, 0)), m_target->size());
    m_ring->setGeometry(around.adjusted(-ringMargin, -ringMargin, ringMargin, ringMargin));
    m_ring->raise();
    m_ring->show();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_target) {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
            place();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}
