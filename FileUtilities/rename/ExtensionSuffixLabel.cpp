#include "ExtensionSuffixLabel.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace {

// QLineEdit keeps two pixels free at either end of its text.
constexpr int lineEditMargin = 2;

} // namespace

ExtensionSuffixLabel::ExtensionSuffixLabel(QLineEdit *field, const QMargins &frame)
    : QWidget(field), m_field(field), m_frame(frame)
{
    setObjectName(QStringLiteral("extensionSuffix"));
    // A click on the suffix is a click on the field.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, &ExtensionSuffixLabel::follow);
    hide();
}

int ExtensionSuffixLabel::widthFor(const QFontMetrics &metrics, const QString &suffix)
{
    return suffix.isEmpty() ? 0 : metrics.horizontalAdvance(suffix) + 1;
}

void ExtensionSuffixLabel::setSuffix(const QString &suffix)
{
    m_suffix = suffix;
    // The field's text stops short of the suffix, however long it grows.
    m_field->setTextMargins(0, 0, widthFor(m_field->fontMetrics(), suffix), 0);
    follow();
}

void ExtensionSuffixLabel::setColor(const QColor &color)
{
    m_color = color;
    update();
}

bool ExtensionSuffixLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field) {
        switch (event->type()) {
        case QEvent::Resize:
        case QEvent::FontChange:
        case QEvent::StyleChange:
            follow();
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ExtensionSuffixLabel::follow()
{
    if (m_suffix.isEmpty() || m_field->text().isEmpty()) {
        hide();
        return;
    }
    const QFontMetrics metrics = m_field->fontMetrics();
    const int suffixWidth = widthFor(metrics, m_suffix);
    const int textLeft = m_frame.left() + lineEditMargin;
    const int textWidth =
        m_field->width() - m_frame.left() - m_frame.right() - suffixWidth - 2 * lineEditMargin;
    // Right after the text while it fits; at the end of the field once the text scrolls.
    const int left = textLeft + qBound(0, metrics.horizontalAdvance(m_field->text()), textWidth);
    setGeometry(left, 0, suffixWidth, m_field->height());
    show();
    update();
}

void ExtensionSuffixLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(m_field->font());
    painter.setPen(m_color);
    const QFontMetrics metrics = painter.fontMetrics();
    // On the field's own baseline: QLineEdit centres a line as tall as its text's bounding
    // box, at least the font's height, in what its border and padding leave.
    const int lineHeight = qMax(metrics.boundingRect(m_field->text()).height(), metrics.height());
    const int contentsHeight = height() - m_frame.top() - m_frame.bottom();
    const int top = m_frame.top() + (contentsHeight - lineHeight + 1) / 2;
    painter.drawText(QPoint(0, top + metrics.ascent()), m_suffix);
}
