#include "BRRenameCompleteView.h"

#include "BRRenameCompleteViewDoneButton.h"
#include "Look.h"
#include "RenameNotificationCenter.h"

#include <QLabel>
#include <QPainter>
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
      m_completeView(new QWidget(this)), m_renameStatusLabel(new QLabel(m_completeView)),
      m_doneButton(new BRRenameCompleteViewDoneButton(m_completeView))
{
    setObjectName(QStringLiteral("renameCompleteStatusView"));
    m_completeView->setObjectName(QStringLiteral("completeView"));

    auto *badgeView = new QLabel(m_completeView);
    badgeView->setPixmap(badge(devicePixelRatioF()));
    badgeView->setAlignment(Qt::AlignCenter);
    // The tick says the run went through; a reader hears the same.
    badgeView->setAccessibleName(QStringLiteral("Completed"));

    QLabel *headline = Look::label(m_completeView, 24, QFont::Medium, Look::Color::PrimaryText,
                                   QStringLiteral("Renaming done"));
    headline->setObjectName(QStringLiteral("headlineLabel"));
    headline->setAlignment(Qt::AlignCenter);

    m_renameStatusLabel->setObjectName(QStringLiteral("renameStatusLabel"));
    m_renameStatusLabel->setAlignment(Qt::AlignCenter);
    m_renameStatusLabel->setTextFormat(Qt::PlainText);
    Look::setTextStyle(m_renameStatusLabel, 13, QFont::Normal, Look::Color::SecondaryText);

    m_doneButton->setObjectName(QStringLiteral("doneButton"));
    m_doneButton->setText(QStringLiteral("Done"));
    m_doneButton->setFont(Look::font(15));
    m_doneButton->setMinimumWidth(140);
    m_doneButton->setCursor(Qt::PointingHandCursor);
    m_doneButton->setDefault(true);

    auto *content = new QVBoxLayout(m_completeView);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(0);
    content->addWidget(badgeView, 0, Qt::AlignHCenter);
    content->addSpacing(20);
    content->addWidget(headline, 0, Qt::AlignHCenter);
    content->addSpacing(6);
    content->addWidget(m_renameStatusLabel, 0, Qt::AlignHCenter);
    content->addSpacing(28);
    content->addWidget(m_doneButton, 0, Qt::AlignHCenter);

    auto *layout = new QVBoxLayout(this);
    layout->addStretch(1);
    layout->addWidget(m_completeView, 0, Qt::AlignHCenter);
    layout->addStretch(1);

    connect(m_doneButton, &QPushButton::clicked, this, &BRRenameCompleteView::doneAction);
    if (m_center)
        connect(m_center, &RenameNotificationCenter::renameComplete, this,
                &BRRenameCompleteView::setRenameCompleteView);
}

void BRRenameCompleteView::setRenameCompleteView(const QStringList &renamedFiles)
{
    if (renamedFiles.isEmpty())
        return;
    // Only the count: the names are in the folder for the user to see.
    m_renameStatusLabel->setText(QString::number(renamedFiles.size()) +
                                 QStringLiteral(" files renamed"));
}

void BRRenameCompleteView::doneAction()
{
    if (m_center)
        Q_EMIT m_center->renameDone();
}
