#include "BRDuplicateCancelViewController.h"

#include "BRDuplicateBarDivider.h"
#include "BRDuplicateFilesViewDelegate.h"
#include "Look.h"
#include "LookStyleSheets.h"
#include "Translations.h"

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

BRDuplicateCancelViewController::BRDuplicateCancelViewController(QWidget *parent)
    : QWidget(parent), m_progressIndicator(new QProgressBar(this)),
      m_cancelButton(new QPushButton(
          QCoreApplication::translate("BRDuplicateCancelViewController", "Stop"), this)),
      m_scannedCountLabel(new QLabel(this)), m_currentFolderLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("BRDuplicateCancelViewController"));
    m_progressIndicator->setObjectName(QStringLiteral("progressIndicator"));
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    m_scannedCountLabel->setObjectName(QStringLiteral("scannedCountLabel"));
    m_currentFolderLabel->setObjectName(QStringLiteral("currentFolderLabel"));

    m_progressIndicator->setTextVisible(false);
    m_progressIndicator->setAccessibleName(
        QCoreApplication::translate("BRDuplicateCancelViewController", "Scan progress"));
    m_progressIndicator->setFixedHeight(6);
    // Most styles draw the busy state as a full bar with faint stripes, which reads as
    // finished; a segment moving along a track says the walk goes on.
    m_progressIndicator->setStyleSheet(Look::StyleSheet::progressTrack());
    m_progressIndicator->setRange(0, 1);
    m_progressIndicator->setValue(0);
    // A long path must not widen the window; it is shortened to the room it has.
    m_currentFolderLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_currentFolderLabel->setTextFormat(Qt::PlainText);
    m_currentFolderLabel->installEventFilter(this);
    Look::setTextColor(m_currentFolderLabel, Look::Color::SecondaryText);

    auto *line = new BRDuplicateBarDivider(this);

    auto *texts = new QHBoxLayout;
    texts->setSpacing(12);
    texts->addWidget(m_scannedCountLabel);
    texts->addWidget(m_currentFolderLabel, 1);
    auto *progress = new QVBoxLayout;
    progress->setSpacing(4);
    progress->addWidget(m_progressIndicator);
    progress->addLayout(texts);
    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(16, 6, 16, 6);
    bar->setSpacing(16);
    bar->addLayout(progress, 1);
    bar->addWidget(m_cancelButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(line);
    layout->addLayout(bar);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_cancelButton, &QPushButton::clicked, this,
            &BRDuplicateCancelViewController::cancelAction);
}

void BRDuplicateCancelViewController::setDuplicateFileViewDelegate(
    BRDuplicateFilesViewDelegate *delegate)
{
    m_duplicateFileViewDelegate = delegate;
}

void BRDuplicateCancelViewController::startAnimateProgress()
{
    // A range of 0 to 0 is the bar's busy state: the walk has no known end.
    m_progressIndicator->setRange(0, 0);
}

void BRDuplicateCancelViewController::stopAnimateProgress()
{
    m_progressIndicator->setRange(0, 1);
    m_progressIndicator->setValue(0);
}

bool BRDuplicateCancelViewController::isAnimating() const
{
    return m_progressIndicator->minimum() == 0 && m_progressIndicator->maximum() == 0;
}

QString BRDuplicateCancelViewController::scannedCountText(qint64 entriesScanned)
{
    // The C locale groups nothing; a bare 1234567 is hard to read.
    QLocale locale;
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English, QLocale::UnitedStates);
    const QString count = locale.toString(entriesScanned);
    const int plural = pluralCount(entriesScanned);
    return entriesScanned == 1 ? QCoreApplication::translate("BRDuplicateCancelViewController",
                                                             "%1 item scanned", nullptr, plural)
                                     .arg(count)
                               : QCoreApplication::translate("BRDuplicateCancelViewController",
                                                             "%1 items scanned", nullptr, plural)
                                     .arg(count);
}

void BRDuplicateCancelViewController::updateScanProgress(qint64 entriesScanned,
                                                         const QString &currentFolder)
{
    m_scannedCountLabel->setText(scannedCountText(entriesScanned));
    m_currentFolder = currentFolder;
    m_currentFolderLabel->setToolTip(currentFolder);
    elideCurrentFolder();
}

void BRDuplicateCancelViewController::showRemovalProgress(int done, int total)
{
    m_progressIndicator->setRange(0, qMax(1, total));
    m_progressIndicator->setValue(done);
    m_scannedCountLabel->setText(
        QCoreApplication::translate("BRDuplicateCancelViewController", "%1 of %2 copies checked")
            .arg(done)
            .arg(total));
    m_currentFolder.clear();
    m_currentFolderLabel->clear();
    m_currentFolderLabel->setToolTip(QString());
}

void BRDuplicateCancelViewController::cancelAction()
{
    if (m_duplicateFileViewDelegate)
        m_duplicateFileViewDelegate->cancelScanProcess();
}

void BRDuplicateCancelViewController::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Coming into view means a new scan: the last one's figures are stale. A window
    // brought back from the dock is the same scan, and keeps them.
    if (!event->spontaneous()) {
        m_scannedCountLabel->clear();
        m_currentFolder.clear();
        m_currentFolderLabel->clear();
        m_currentFolderLabel->setToolTip(QString());
    }
    startAnimateProgress();
}

bool BRDuplicateCancelViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_currentFolderLabel && event->type() == QEvent::Resize)
        elideCurrentFolder();
    return QWidget::eventFilter(watched, event);
}

// Shortened in the middle, so that both the top of the tree and the folder's own name
// stay readable.
void BRDuplicateCancelViewController::elideCurrentFolder()
{
    const int room = m_currentFolderLabel->width();
    m_currentFolderLabel->setText(
        m_currentFolderLabel->fontMetrics().elidedText(m_currentFolder, Qt::ElideMiddle, room));
}
