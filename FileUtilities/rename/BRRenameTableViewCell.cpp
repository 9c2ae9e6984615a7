#include "BRRenameTableViewCell.h"

#include "BRRenameViewDelegate.h"
#include "CustomTextField.h"
#include "ExtensionSuffixLabel.h"
#include "LookStyleSheets.h"
#include "RenameRowStyle.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

namespace {

QToolButton *makeImageButton(const QString &objectName, const QString &accessibleName,
                             const QIcon &icon, QSize iconSize, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(objectName);
    // The picture alone says nothing to a screen reader.
    button->setAccessibleName(accessibleName);
    button->setToolTip(accessibleName);
    button->setIcon(icon);
    button->setIconSize(iconSize);
    button->setAutoRaise(true);
    button->setCursor(Qt::PointingHandCursor);
    // A click on a control of the row leaves a name being typed where it is.
    button->setFocusPolicy(Qt::NoFocus);
    button->setStyleSheet(Look::StyleSheet::toolButton());
    return button;
}

} // namespace

BRRenameTableViewCell::BRRenameTableViewCell(QWidget *parent)
    : QWidget(parent), m_sourceFilesImageView(new QLabel(this)),
      m_sourceFileNamesLabel(new QLabel(this)), m_destFileNameLabel(new CustomTextField(this)),
      m_extensionSuffix(
          new ExtensionSuffixLabel(m_destFileNameLabel, RenameRowStyle::newNameFieldFrame())),
      m_removeButton(makeImageButton(QStringLiteral("removeButton"),
                                     QCoreApplication::translate("BRRenameTableViewCell", "Remove"),
                                     RenameRowStyle::removeIcon(), QSize(18, 18), this)),
      m_popoverButton(
          makeImageButton(QStringLiteral("popoverButton"),
                          QCoreApplication::translate("BRRenameTableViewCell", "Preview"),
                          RenameRowStyle::popoverIcon(), QSize(20, 20), this)),
      m_markView(new QLabel(this))
{
    m_markView->setObjectName(QStringLiteral("markView"));
    m_markView->hide();
    setObjectName(QStringLiteral("renameCell"));
    m_sourceFilesImageView->setObjectName(QStringLiteral("sourceFilesImageView"));
    m_sourceFilesImageView->setAlignment(Qt::AlignCenter);
    m_sourceFileNamesLabel->setObjectName(QStringLiteral("sourceFileNamesLabel"));
    m_sourceFileNamesLabel->setTextFormat(Qt::PlainText);
    m_sourceFileNamesLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_destFileNameLabel->setObjectName(QStringLiteral("destFileNameLabel"));
    m_destFileNameLabel->setAccessibleName(
        QCoreApplication::translate("BRRenameTableViewCell", "New Name"));
    m_destFileNameLabel->installEventFilter(this);
    // Files dragged over the row go to the list, never into the field as text.
    m_destFileNameLabel->setAcceptDrops(false);
    m_extensionSuffix->setColor(RenameRowStyle::extensionColor());
    setAttributes();
    setDestinationName(std::nullopt, QString(), false);
    m_removeButton->hide();

    connect(m_removeButton, &QToolButton::clicked, this, &BRRenameTableViewCell::removeAction);
    connect(m_popoverButton, &QToolButton::clicked, this, &BRRenameTableViewCell::togglePopover);
    connect(m_destFileNameLabel, &QLineEdit::returnPressed, this,
            &BRRenameTableViewCell::textFieldAction);
}

void BRRenameTableViewCell::setAttributes()
{
    m_sourceFileNamesLabel->setFont(RenameRowStyle::sourceNameFont());
    QPalette namePalette = m_sourceFileNamesLabel->palette();
    namePalette.setColor(QPalette::WindowText, RenameRowStyle::sourceNameColor());
    m_sourceFileNamesLabel->setPalette(namePalette);

    m_destFileNameLabel->setStyleSheet(RenameRowStyle::newNameFieldStyleSheet());
    m_destFileNameLabel->setFont(RenameRowStyle::newNameFont());
    m_destFileNameLabel->setPlaceholderText(RenameRowStyle::placeholderText());
    m_destFileNameLabel->setAttribute(Qt::WA_MacShowFocusRect, false);
    QPalette fieldPalette = m_destFileNameLabel->palette();
    fieldPalette.setColor(QPalette::PlaceholderText, RenameRowStyle::placeholderColor());
    m_destFileNameLabel->setPalette(fieldPalette);
}

void BRRenameTableViewCell::setSourceFileName(const QString &name)
{
    m_sourceFileName = name;
    m_sourceFileNamesLabel->setToolTip(name);
    updateSourceNameText();
}

void BRRenameTableViewCell::updateSourceNameText()
{
    m_sourceFileNamesLabel->setText(
        RenameRowStyle::elidedSourceName(m_sourceFileName, m_sourceFileNamesLabel->width()));
}

void BRRenameTableViewCell::setDestinationName(const std::optional<QString> &name,
                                               const QString &suffix, bool edited)
{
    QPalette palette = m_destFileNameLabel->palette();
    palette.setColor(QPalette::Text,
                     edited ? RenameRowStyle::editedNameColor() : RenameRowStyle::ruleNameColor());
    m_destFileNameLabel->setPalette(palette);
    // What the user is typing stays; the row's name comes back when the typing ends.
    if (isEditing() && m_destFileNameLabel->isModified())
        return;
    const bool named = name && !name->isEmpty();
    // The placeholder stands alone: a row without a name keeps the name it has.
    m_extensionSuffix->setSuffix(named ? suffix : QString());
    m_destFileNameLabel->setText(named ? *name : QString());
    if (!m_destFileNameLabel->hasFocus())
        m_destFileNameLabel->setCursorPosition(0); // the start of a long name, as painted
    // With its name gone the field has nothing left to edit.
    if (!named && m_destFileNameLabel->hasFocus())
        m_destFileNameLabel->clearFocus();
    m_destFileNameLabel->setReadOnly(!named);
    m_destFileNameLabel->setFocusPolicy(named ? Qt::ClickFocus : Qt::NoFocus);
    // A field without a name is only a picture of the placeholder: a click on it is a
    // click on the row.
    m_destFileNameLabel->setAttribute(Qt::WA_TransparentForMouseEvents, !named);
    m_destFileNameLabel->setCursor(named ? Qt::IBeamCursor : Qt::ArrowCursor);
}

void BRRenameTableViewCell::setThumbnail(const QImage &image)
{
    m_thumbnail = image;
    m_sourceFilesImageView->setPixmap(RenameRowStyle::thumbnailPixmap(image, devicePixelRatioF()));
}

void BRRenameTableViewCell::setMark(RowMark mark, const QString &why)
{
    m_mark = mark;
    m_markView->setVisible(mark != RowMark::None);
    m_markView->setToolTip(why);
    m_markView->setAccessibleName(
        mark == RowMark::Failed
            ? QCoreApplication::translate("BRRenameTableViewCell", "Failed")
            : QCoreApplication::translate("BRRenameTableViewCell", "Will not be renamed"));
    m_markView->setAccessibleDescription(why);
    m_markView->setPixmap(
        RenameRowStyle::markPixmap(mark, m_markView->size(), devicePixelRatioF()));
}

void BRRenameTableViewCell::setHovered(bool hovered)
{
    if (m_hovered != hovered)
        update();
    m_hovered = hovered;
    m_removeButton->setVisible(hovered);
}

bool BRRenameTableViewCell::isEditing() const
{
    return m_destFileNameLabel->hasFocus();
}

void BRRenameTableViewCell::removeAction()
{
    if (m_delegate)
        m_delegate->removeRowFromTableView(m_removeButton);
}

void BRRenameTableViewCell::togglePopover()
{
    if (m_delegate)
        m_delegate->showPopOverForView(m_popoverButton);
}

void BRRenameTableViewCell::textFieldAction()
{
    // The text is taken as it stands; a later focus change has nothing left to commit.
    m_destFileNameLabel->setModified(false);
    if (!m_delegate)
        return;
    m_delegate->closePopOver();
    m_delegate->updateNewFileName(m_destFileNameLabel, std::nullopt);
}

bool BRRenameTableViewCell::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_destFileNameLabel) {
        if (event->type() == QEvent::FocusIn) {
            Q_EMIT editingChanged(true);
        } else if (event->type() == QEvent::FocusOut) {
            // Leaving the field commits what was typed, as Return does. A popup taking the
            // keyboard for a moment (the field's own menu, the file's popover) is no end.
            const auto *focus = static_cast<QFocusEvent *>(event);
            if (focus->reason() != Qt::PopupFocusReason) {
                if (m_destFileNameLabel->isModified())
                    textFieldAction();
                Q_EMIT editingChanged(false);
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

void BRRenameTableViewCell::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    RenameRowStyle::paintGround(&painter, rect(), m_hovered);
    RenameRowStyle::paintArrow(&painter, RenameRowStyle::geometry(rect()).arrow);
}

void BRRenameTableViewCell::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layoutParts();
}

void BRRenameTableViewCell::layoutParts()
{
    const RenameRowStyle::Geometry parts = RenameRowStyle::geometry(rect());
    m_sourceFilesImageView->setGeometry(parts.thumbnail);
    m_sourceFileNamesLabel->setGeometry(parts.sourceName);
    m_destFileNameLabel->setGeometry(parts.newName);
    m_popoverButton->setGeometry(parts.popoverControl);
    if (m_markView->size() != parts.mark.size()) {
        m_markView->setGeometry(parts.mark);
        setMark(m_mark, m_markView->toolTip());
    } else {
        m_markView->setGeometry(parts.mark);
    }
    m_removeButton->setGeometry(parts.removeControl);
    updateSourceNameText();
}

void BRRenameTableViewCell::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    setHovered(true);
}

void BRRenameTableViewCell::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    setHovered(false);
}
