#include "BRDuplicateScanStatusViewController.h"

#include "BRDuplicateScanStartViewController.h"
#include "BRDuplicateStatusViewNewScanButton.h"
#include "BRDuplicateTabViewController.h"
#include "Look.h"
#include "ViewFader.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

BRDuplicateScanStatusViewController::BRDuplicateScanStatusViewController(QWidget *parent)
    : BRDuplicateStatusView(parent),
      m_statusLabel(new QLabel(QCoreApplication::translate("BRDuplicateScanStatusViewController",
                                                           "No duplicate files found"),
                               this)),
      m_directoryLabel(new QLabel(this)),
      m_newScanButton(new BRDuplicateStatusViewNewScanButton(this))
{
    setObjectName(QStringLiteral("BRDuplicateScanStatusViewController"));
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    m_directoryLabel->setObjectName(QStringLiteral("directoryLabel"));
    m_newScanButton->setObjectName(QStringLiteral("newScanButton"));

    m_statusLabel->setAlignment(Qt::AlignCenter);
    Look::setTextStyle(m_statusLabel, 29, QFont::Normal, Look::Color::PrimaryText);
    m_directoryLabel->setAlignment(Qt::AlignCenter);
    m_directoryLabel->setTextFormat(Qt::PlainText);
    Look::setTextStyle(m_directoryLabel, 20, QFont::Normal, Look::Color::SecondaryText);
    m_newScanButton->setMinimumSize(160, 40);
    m_newScanButton->setCursor(Qt::PointingHandCursor);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 40, 40, 40);
    layout->addStretch(3);
    layout->addWidget(m_statusLabel);
    layout->addSpacing(6);
    layout->addWidget(m_directoryLabel);
    layout->addSpacing(32);
    layout->addWidget(m_newScanButton, 0, Qt::AlignHCenter);
    layout->addStretch(4);

    connect(m_newScanButton, &QPushButton::clicked, this,
            &BRDuplicateScanStatusViewController::startNewScanAction);
    setNewScanButtonTitle(
        QCoreApplication::translate("BRDuplicateScanStatusViewController", "New Scan"));
}

void BRDuplicateScanStatusViewController::setNewScanButtonTitle(const QString &title)
{
    m_newScanButton->setText(title);
    Look::setTextStyle(m_newScanButton, 20, QFont::Normal, Look::Color::TextOnColor);
}

void BRDuplicateScanStatusViewController::showFolderName(const QString &folderName)
{
    m_directoryLabel->setText(
        QCoreApplication::translate("BRDuplicateScanStatusViewController", "in \"%1\"")
            .arg(folderName));
}

// This screen stays faded out while it is out of sight; the duplicate side brings it
// back to full opacity when it shows it again.
void BRDuplicateScanStatusViewController::startNewScanAction()
{
    auto *tabs = qobject_cast<BRDuplicateTabViewController *>(parentWidget());
    if (!tabs)
        return;
    auto *startScreen = qobject_cast<BRDuplicateScanStartViewController *>(
        tabs->widget(BRDuplicateTabViewController::startIndex));
    if (!startScreen)
        return;
    QPointer<BRDuplicateTabViewController> tabGuard(tabs);
    QPointer<BRDuplicateScanStartViewController> startGuard(startScreen);
    const int fadeMs = m_fadeDurationMs;
    ViewFader::fade(this, 0.0, fadeMs, [tabGuard, startGuard, fadeMs] {
        if (!tabGuard || !startGuard)
            return;
        tabGuard->selectTabViewAtIndex(BRDuplicateTabViewController::startIndex);
        ViewFader::fade(startGuard, 1.0, fadeMs);
    });
}
