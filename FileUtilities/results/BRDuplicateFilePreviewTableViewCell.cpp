#include "BRDuplicateFilePreviewTableViewCell.h"

#include "BRDuplicateFilePreviewDelegate.h"
#include "Look.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEnterEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QTextCursor>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtMath>

namespace {

QLabel *makeRowLabel(const QString &objectName, int pixelSize, QWidget *parent)
{
    QLabel *label = Look::label(parent, pixelSize, QFont::Normal, Look::Color::SecondaryText);
    label->setObjectName(objectName);
    // Clicks on the text belong to the row.
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

QTextEdit *makePathLabel(QWidget *parent)
{
    auto *label = new QTextEdit(parent);
    label->setObjectName(QStringLiteral("pathLabel"));
    label->setReadOnly(true);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    label->setFocusPolicy(Qt::NoFocus);
    label->setFrameShape(QFrame::NoFrame);
    label->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    label->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    label->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    label->document()->setDocumentMargin(0);
    label->setFont(BRDuplicateFilePreviewTableViewCell::pathFont());
    label->document()->setDefaultFont(BRDuplicateFilePreviewTableViewCell::pathFont());
    label->viewport()->setAutoFillBackground(false);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setFixedWidth(BRDuplicateFilePreviewTableViewCell::pathWidth);
    return label;
}

void setTextColor(QWidget *widget, QPalette::ColorRole role, const QColor &color)
{
    QPalette palette = widget->palette();
    palette.setColor(role, color);
    widget->setPalette(palette);
}

} // namespace

BRDuplicateFilePreviewTableViewCell::BRDuplicateFilePreviewTableViewCell(QWidget *parent)
    : QWidget(parent), m_serialLabel(makeRowLabel(QStringLiteral("serialLabel"), 13, this)),
      m_pathLabel(makePathLabel(this)), m_deleteButton(new QToolButton(this)),
      m_byteSizeLabel(makeRowLabel(QStringLiteral("byteSizeLabel"), 11, this)),
      m_modifiedDateLabel(makeRowLabel(QStringLiteral("modifiedDateLabel"), 11, this)),
      m_checkingLabel(makeRowLabel(QStringLiteral("checkingLabel"), 11, this)),
      m_sameFileLabel(makeRowLabel(QStringLiteral("sameFileLabel"), 11, this))
{
    setObjectName(QStringLiteral("dupeFilePreviewCell"));
    // A row is a stop for the keyboard: Delete removes its copy, Ctrl+Enter shows it.
    setFocusPolicy(Qt::StrongFocus);
    setProperty("drawsOwnFocus", true);
    m_serialLabel->setFixedWidth(24);
    m_serialLabel->setAlignment(Qt::AlignRight | Qt::AlignTop);

    m_deleteButton->setObjectName(QStringLiteral("deleteButton"));
    m_deleteButton->setAccessibleName(
        QCoreApplication::translate("BRDuplicateFilePreviewTableViewCell", "Move to Trash"));
    m_deleteButton->setToolTip(
        QCoreApplication::translate("BRDuplicateFilePreviewTableViewCell", "Move to Trash"));
    m_deleteButton->setAutoRaise(true);
    m_deleteButton->setCursor(Qt::PointingHandCursor);
    // The themes' full-colour bins shout among the grey rows; their plain outline does not.
    m_deleteButton->setIcon(QIcon::fromTheme(QStringLiteral("user-trash-symbolic"),
                                             style()->standardIcon(QStyle::SP_TrashIcon)));
    m_deleteButton->setIconSize(QSize(16, 16));
    m_deleteButton->setFixedSize(26, 26);
    connect(m_deleteButton, &QToolButton::clicked, this,
            &BRDuplicateFilePreviewTableViewCell::deleteAction);

    m_checkingLabel->setText(
        QCoreApplication::translate("BRDuplicateFilePreviewTableViewCell", "Checking…"));
    Look::setTextStyle(m_checkingLabel, 11, QFont::DemiBold, Look::Color::PrimaryText);
    m_checkingLabel->hide();
    m_sameFileLabel->hide();

    auto *details = new QHBoxLayout;
    details->setSpacing(14);
    details->addWidget(m_byteSizeLabel);
    details->addWidget(m_modifiedDateLabel);
    details->addWidget(m_checkingLabel);
    details->addStretch();
    auto *text = new QVBoxLayout;
    text->setSpacing(8);
    text->addWidget(m_pathLabel);
    text->addLayout(details);
    text->addWidget(m_sameFileLabel);
    text->addStretch();
    auto *layout = new QHBoxLayout(this);
    // Above and below the path: 12 + 8 + the details line + the rest make the row's fixed
    // extra height.
    layout->setContentsMargins(4, 12, 6, 12);
    layout->setSpacing(8);
    layout->addWidget(m_serialLabel, 0, Qt::AlignTop);
    layout->addLayout(text, 1);
    layout->addWidget(m_deleteButton, 0, Qt::AlignTop);
    applyColors();
}

QFont BRDuplicateFilePreviewTableViewCell::pathFont()
{
    return Look::font(13);
}

QColor BRDuplicateFilePreviewTableViewCell::pathColor()
{
    return Look::color(Look::Color::SecondaryText);
}

QColor BRDuplicateFilePreviewTableViewCell::hoverPathColor()
{
    return Look::color(Look::Color::PrimaryText);
}

QColor BRDuplicateFilePreviewTableViewCell::separatorColor()
{
    return Look::color(Look::Color::PathSeparator);
}

QColor BRDuplicateFilePreviewTableViewCell::deletingColor()
{
    return Look::color(Look::Color::DisabledText);
}

void BRDuplicateFilePreviewTableViewCell::setPathText(const QString &display)
{
    QTextDocument *document = m_pathLabel->document();
    document->clear();
    QTextCursor cursor(document);
    // Only the separators carry a colour of their own; the rest follows the palette, so
    // hover and deletion recolour it.
    QTextCharFormat plain;
    QTextCharFormat separator;
    separator.setForeground(separatorColor());
    qsizetype from = 0;
    for (qsizetype at = display.indexOf(QLatin1Char('>')); at >= 0;
         at = display.indexOf(QLatin1Char('>'), from)) {
        cursor.insertText(display.mid(from, at - from), plain);
        cursor.insertText(QStringLiteral(">"), separator);
        from = at + 1;
    }
    cursor.insertText(display.mid(from), plain);
    document->setTextWidth(pathWidth);
    m_pathLabel->setFixedHeight(qCeil(document->size().height()));
}

QString BRDuplicateFilePreviewTableViewCell::pathText() const
{
    return m_pathLabel->toPlainText();
}

void BRDuplicateFilePreviewTableViewCell::deleteAction()
{
    if (!m_delegate)
        return;
    // The row greys at once; it leaves the list only when the file has gone.
    m_deleting = true;
    applyColors();
    m_deleteButton->hide();
    m_delegate->deletePath(m_deleteButton);
}

void BRDuplicateFilePreviewTableViewCell::setChecking(bool checking)
{
    m_checking = checking;
    m_deleting = m_deleting || checking;
    m_checkingLabel->setVisible(checking);
    // The date makes room for the word; the size stays.
    m_modifiedDateLabel->setVisible(!checking);
    if (checking)
        m_deleteButton->hide();
    applyColors();
}

void BRDuplicateFilePreviewTableViewCell::setSameFileAs(int serial)
{
    m_sameFileLabel->setVisible(serial > 0);
    m_sameFileLabel->setText(
        serial > 0
            ? QCoreApplication::translate("BRDuplicateFilePreviewTableViewCell", "Same file as %1.")
                  .arg(serial)
            : QString());
}

void BRDuplicateFilePreviewTableViewCell::setHovered(bool hovered)
{
    m_hovered = hovered;
    applyColors();
}

void BRDuplicateFilePreviewTableViewCell::applyColors()
{
    const QColor path = m_deleting ? deletingColor() : (m_hovered ? hoverPathColor() : pathColor());
    setTextColor(m_pathLabel, QPalette::Text, path);
    setTextColor(m_serialLabel, QPalette::WindowText, m_deleting ? deletingColor() : pathColor());
}

void BRDuplicateFilePreviewTableViewCell::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    setHovered(true);
}

void BRDuplicateFilePreviewTableViewCell::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    setHovered(false);
}

void BRDuplicateFilePreviewTableViewCell::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // A row that appears under a resting pointer gets no enter event of its own.
    setHovered(rect().contains(mapFromGlobal(QCursor::pos())));
}

void BRDuplicateFilePreviewTableViewCell::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        // The last copy of a group has no button, and a copy being checked has none either.
        if (!m_deleteButton->isHidden())
            m_deleteButton->click();
    } else if (enter && (event->modifiers() & Qt::ControlModifier)) {
        Q_EMIT revealRequested();
    } else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        Q_EMIT stepRequested(event->key() == Qt::Key_Up ? -1 : 1);
    } else {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void BRDuplicateFilePreviewTableViewCell::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    setHovered(true);
    update();
}

void BRDuplicateFilePreviewTableViewCell::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    setHovered(rect().contains(mapFromGlobal(QCursor::pos())));
    update();
}

void BRDuplicateFilePreviewTableViewCell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (hasFocus()) {
        // The keyboard's row, drawn as the platform draws a focused control.
        QPen ring(Look::color(Look::Color::DuplicatesAccent), 2);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(ring);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    painter.setPen(Look::color(Look::Color::RowSeparator));
    painter.drawLine(QPoint(m_pathLabel->x(), height() - 1), QPoint(width() - 1, height() - 1));
}
