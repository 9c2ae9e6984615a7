#include "BRRenameCompleteView.h"

#include "BRRenameCompleteViewDoneButton.h"
#include "Look.h"
#include "LookStyleSheets.h"
#include "RenameNotificationCenter.h"
#include "Translations.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int badgeSide = 64;

// A green disc with a tick, in the colour of the rename button that led here.
QPixmap badge(qreal ratio)
{
    QPixmap pixmap(QSize(badgeSide, badgeSide) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Look::color(Look::Color::Accent));
    painter.drawEllipse(QRectF(1, 1, badgeSide - 2, badgeSide - 2));
    QPen tick(Look::color(Look::Color::TextOnColor), 5);
    tick.setCapStyle(Qt::RoundCap);
    tick.setJoinStyle(Qt::RoundJoin);
    painter.setPen(tick);
    painter.setBrush(Qt::NoBrush);
    const QPointF points[] = {{19, 33}, {28, 42}, {45, 24}};
    painter.drawPolyline(points, 3);
    return pixmap;
}

} // namespace

BRRenameCompleteView::BRRenameCompleteView(RenameNotificationCenter *center, QWidget *parent)
    : BRImageBackgroundView(QStringLiteral("bg"), Tone::Light, parent), m_center(center),
      m_completeView(new QWidget(this)),
      m_headline(Look::label(m_completeView, 24, QFont::Medium, Look::Color::PrimaryText,
                             QCoreApplication::translate("BRRenameCompleteView", "Renaming done"))),
      m_renameStatusLabel(new QLabel(m_completeView)),
      m_showFailedButton(
          new QPushButton(QCoreApplication::translate("BRRenameCompleteView", "Show failed files"),
                          m_completeView)),
      m_undoButton(new QPushButton(
          QCoreApplication::translate("BRRenameCompleteView", "Undo Rename"), m_completeView)),
      m_doneButton(new BRRenameCompleteViewDoneButton(m_completeView))
{
    setObjectName(QStringLiteral("renameCompleteStatusView"));
    m_completeView->setObjectName(QStringLiteral("completeView"));

    auto *badgeView = new QLabel(m_completeView);
    badgeView->setPixmap(badge(devicePixelRatioF()));
    badgeView->setAlignment(Qt::AlignCenter);
    // The tick says the run went through; a reader hears the same.
    badgeView->setAccessibleName(QCoreApplication::translate("BRRenameCompleteView", "Completed"));

    m_headline->setObjectName(QStringLiteral("headlineLabel"));
    m_headline->setAlignment(Qt::AlignCenter);

    m_renameStatusLabel->setObjectName(QStringLiteral("renameStatusLabel"));
    m_renameStatusLabel->setAlignment(Qt::AlignCenter);
    m_renameStatusLabel->setTextFormat(Qt::PlainText);
    Look::setTextStyle(m_renameStatusLabel, 13, QFont::Normal, Look::Color::SecondaryText);

    m_doneButton->setObjectName(QStringLiteral("doneButton"));
    m_doneButton->setText(QCoreApplication::translate("BRRenameCompleteView", "Done"));
    m_doneButton->setFont(Look::font(15));
    m_doneButton->setMinimumWidth(140);
    m_doneButton->setCursor(Qt::PointingHandCursor);
    m_doneButton->setDefault(true);

    for (QPushButton *button : {m_showFailedButton, m_undoButton}) {
        button->setStyleSheet(Look::StyleSheet::plainButton());
        button->setFont(Look::font(15));
        button->setCursor(Qt::PointingHandCursor);
    }
    m_showFailedButton->setObjectName(QStringLiteral("showFailedButton"));
    m_showFailedButton->hide();
    m_undoButton->setObjectName(QStringLiteral("undoButton"));
    m_undoButton->setMinimumWidth(140);
    m_undoButton->setToolTip(QCoreApplication::translate(
        "BRRenameCompleteView", "Give every renamed file its old name again"));
    m_undoButton->hide();

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(m_undoButton);
    buttons->addWidget(m_doneButton);

    auto *content = new QVBoxLayout(m_completeView);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(0);
    content->addWidget(badgeView, 0, Qt::AlignHCenter);
    content->addSpacing(20);
    content->addWidget(m_headline, 0, Qt::AlignHCenter);
    content->addSpacing(6);
    content->addWidget(m_renameStatusLabel, 0, Qt::AlignHCenter);
    content->addSpacing(14);
    content->addWidget(m_showFailedButton, 0, Qt::AlignHCenter);
    content->addSpacing(14);
    content->addLayout(buttons);
    content->setAlignment(buttons, Qt::AlignHCenter);
    // Done comes first to the keyboard, as the view's answer; Tab then reaches the others.
    setTabOrder(m_doneButton, m_undoButton);
    setTabOrder(m_undoButton, m_showFailedButton);

    auto *layout = new QVBoxLayout(this);
    layout->addStretch(1);
    layout->addWidget(m_completeView, 0, Qt::AlignHCenter);
    layout->addStretch(1);

    connect(m_doneButton, &QPushButton::clicked, this, &BRRenameCompleteView::doneAction);
    connect(m_undoButton, &QPushButton::clicked, this, &BRRenameCompleteView::undoAction);
    connect(m_showFailedButton, &QPushButton::clicked, this,
            &BRRenameCompleteView::showFailedAction);
    if (m_center)
        connect(m_center, &RenameNotificationCenter::renameComplete, this,
                &BRRenameCompleteView::setRenameCompleteView);
}

void BRRenameCompleteView::setFailedCount(int failed)
{
    m_failedCount = failed;
}

void BRRenameCompleteView::setUndoAvailable(bool available)
{
    m_undoButton->setVisible(available);
    m_undoButton->setEnabled(available);
}

void BRRenameCompleteView::setRenameCompleteView(const QStringList &renamedFiles)
{
    if (renamedFiles.isEmpty())
        return;
    m_headline->setText(QCoreApplication::translate("BRRenameCompleteView", "Renaming done"));
    // Only the counts: the names are in the folder for the user to see, and the failed
    // rows in the list that Show failed files brings back.
    QString status = QCoreApplication::translate("BRRenameCompleteView", "%n files renamed",
                                                 nullptr, pluralCount(renamedFiles.size()));
    if (m_failedCount > 0)
        status += QCoreApplication::translate("BRRenameCompleteView", ", %n failed", nullptr,
                                              pluralCount(m_failedCount));
    m_renameStatusLabel->setText(status);
    m_showFailedButton->setVisible(m_failedCount > 0);
}

void BRRenameCompleteView::showUndone(qsizetype restored, qsizetype notRestored)
{
    m_headline->setText(QCoreApplication::translate("BRRenameCompleteView", "Rename undone"));
    QString status =
        QCoreApplication::translate("BRRenameCompleteView", "%n files have their old names again",
                                    nullptr, pluralCount(restored));
    if (notRestored > 0)
        status += QCoreApplication::translate("BRRenameCompleteView", ", %n could not go back",
                                              nullptr, pluralCount(notRestored));
    m_renameStatusLabel->setText(status);
    // The failed rows belonged to a batch that is undone now.
    m_showFailedButton->hide();
    if (m_undoButton->hasFocus() || m_showFailedButton->hasFocus())
        m_doneButton->setFocus(Qt::OtherFocusReason);
}

void BRRenameCompleteView::doneAction()
{
    if (m_center)
        Q_EMIT m_center->renameDone();
}

void BRRenameCompleteView::undoAction()
{
    // One press: the button comes back if some files could not go back. The keyboard
    // waits on Done meanwhile, not on a button that cannot be pressed.
    if (m_undoButton->hasFocus())
        m_doneButton->setFocus(Qt::OtherFocusReason);
    m_undoButton->setEnabled(false);
    if (m_center)
        Q_EMIT m_center->undoRename();
}

void BRRenameCompleteView::showFailedAction()
{
    if (m_center)
        Q_EMIT m_center->showFailedFiles();
}
