#include "BRDuplicateScanStartViewController.h"

#include "BRDuplicateFilesViewDelegate.h"
#include "BRDuplicateStartScanButton.h"
#include "BRDuplicateTabViewController.h"
#include "BRObjectClass.h"
#include "BRRealHomeDirectory.h"
#include "Look.h"
#include "LookStyleSheets.h"
#include "OpenPanel.h"
#include "ViewFader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtConcurrentRun>

namespace {

// The folder's own name; the root folder has none, so it shows as its path.
QString folderName(const QUrl &url)
{
    const QString path = QDir::cleanPath(url.toLocalFile());
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}

} // namespace

BRDuplicateScanStartViewController::BRDuplicateScanStartViewController(OpenPanel &openPanel,
                                                                       QWidget *parent)
    : BRDuplicateScanStartView(parent), m_openPanel(openPanel), m_dirImageView(new QLabel(this)),
      m_selectedFolderNameLabel(new QLabel(this)),
      m_startScanButton(new BRDuplicateStartScanButton(this)),
      m_browseButton(new QPushButton(
          QCoreApplication::translate("BRDuplicateScanStartViewController", "Choose Folder…"),
          this))
{
    setObjectName(QStringLiteral("BRDuplicateScanStartViewController"));
    m_dirImageView->setObjectName(QStringLiteral("dirImageView"));
    m_selectedFolderNameLabel->setObjectName(QStringLiteral("selectedFolderNameLabel"));
    m_startScanButton->setObjectName(QStringLiteral("startScanButton"));
    m_browseButton->setObjectName(QStringLiteral("browseButton"));

    m_dirImageView->setFixedSize(previewSide, previewSide);
    m_dirImageView->setAlignment(Qt::AlignCenter);
    m_dirImageView->setAccessibleName(
        QCoreApplication::translate("BRDuplicateScanStartViewController", "Chosen folder"));
    m_selectedFolderNameLabel->setAlignment(Qt::AlignCenter);
    m_selectedFolderNameLabel->setTextFormat(Qt::PlainText);
    Look::setTextStyle(m_selectedFolderNameLabel, 23, QFont::Normal, Look::Color::PrimaryText);
    m_startScanButton->setMinimumSize(220, 52);
    m_startScanButton->setCursor(Qt::PointingHandCursor);
    // A link under the main button: choosing another folder is the lesser action.
    m_browseButton->setFlat(true);
    m_browseButton->setCursor(Qt::PointingHandCursor);
    m_browseButton->setFont(Look::font(19));
    m_browseButton->setStyleSheet(Look::StyleSheet::linkButton());

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 40, 40, 40);
    layout->addStretch(3);
    layout->addWidget(m_dirImageView, 0, Qt::AlignHCenter);
    layout->addSpacing(12);
    layout->addWidget(m_selectedFolderNameLabel);
    layout->addSpacing(36);
    layout->addWidget(m_startScanButton, 0, Qt::AlignHCenter);
    layout->addSpacing(10);
    layout->addWidget(m_browseButton, 0, Qt::AlignHCenter);
    layout->addStretch(4);

    connect(m_startScanButton, &QPushButton::clicked, this,
            &BRDuplicateScanStartViewController::startScanAction);
    connect(m_browseButton, &QPushButton::clicked, this,
            &BRDuplicateScanStartViewController::selectFolderAction);

    setScanStartView();
}

void BRDuplicateScanStartViewController::setDuplicateMainViewDelegate(
    BRDuplicateFilesMainViewDelegate *delegate)
{
    m_duplicateMainViewDelegate = delegate;
}

void BRDuplicateScanStartViewController::setScanStartView()
{
    setStartScanButtonTitle(
        QCoreApplication::translate("BRDuplicateScanStartViewController", "Start Scan"));
    // Without a password entry the home the environment names is the best there is.
    const QString home = BRRealHomeDirectory::RealHomeDirectory().value_or(QDir::homePath());
    const QUrl url = QUrl::fromLocalFile(home);
    m_selectedUrl = url;
    createPreviewForURL(url);
    showFolderName(url);
}

void BRDuplicateScanStartViewController::setStartScanButtonTitle(const QString &title)
{
    m_startScanButton->setText(title);
    Look::setTextStyle(m_startScanButton, 27, QFont::Normal, Look::Color::TextOnColor);
}

void BRDuplicateScanStartViewController::setSelectedUrl(const QUrl &url)
{
    if (url.isEmpty()) {
        m_selectedUrl.reset();
        m_selectedFolderNameLabel->clear();
        m_dirImageView->clear();
        return;
    }
    m_selectedUrl = url;
    createPreviewForURL(url);
    showFolderName(url);
}

void BRDuplicateScanStartViewController::selectFolderAction()
{
    OpenPanelRequest request;
    request.directory = m_selectedUrl ? m_selectedUrl->toLocalFile() : QString();
    request.message =
        tr("Choose a folder to scan", "Open panel title to select folder to scan duplicate files");
    request.prompt = tr("Choose");
    request.canChooseFiles = false;
    request.canChooseDirectories = true;
    request.canCreateDirectories = false;
    request.allowsMultipleSelection = false;
    const QList<QUrl> chosen = m_openPanel.runModal(request);
    if (chosen.isEmpty())
        return;
    setSelectedUrl(chosen.first());
}

void BRDuplicateScanStartViewController::createPreviewForURL(const QUrl &url)
{
    const QString path = url.toLocalFile();
    if (path.isEmpty())
        return;
    const double ratio = devicePixelRatioF();
    const double side = previewSide * ratio;
    auto *watcher = new QFutureWatcher<std::optional<QImage>>(this);
    // The watcher dies with this screen, so a picture that comes too late goes nowhere.
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, ratio] {
        const std::optional<QImage> image = watcher->result();
        watcher->deleteLater();
        if (!image || image->isNull())
            return;
        QImage shown = *image;
        shown.setDevicePixelRatio(ratio);
        showPreview(shown);
    });
    watcher->setFuture(QtConcurrent::run(
        [path, side] { return BRObjectClass().thumbnailForPath(path, side, side); }));
}

void BRDuplicateScanStartViewController::showPreview(QImage image)
{
    const QSize box = QSize(previewSide, previewSide) * image.devicePixelRatio();
    if (image.width() > box.width() || image.height() > box.height()) {
        const double ratio = image.devicePixelRatio();
        image = image.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
    }
    m_dirImageView->setPixmap(QPixmap::fromImage(image));
}

void BRDuplicateScanStartViewController::showFolderName(const QUrl &url)
{
    const QString name = folderName(url);
    if (!name.isEmpty())
        m_selectedFolderNameLabel->setText(name);
}

void BRDuplicateScanStartViewController::startScanAction()
{
    if (!m_selectedUrl || m_scanStarting)
        return;
    auto *tabs = qobject_cast<BRDuplicateTabViewController *>(parentWidget());
    if (!tabs || !dynamic_cast<BRDuplicateFilesViewDelegate *>(
                     tabs->widget(BRDuplicateTabViewController::resultsIndex)))
        return;
    m_scanStarting = true;
    QPointer<QWidget> results = tabs->widget(BRDuplicateTabViewController::resultsIndex);
    ViewFader::fade(this, 0.0, m_fadeDurationMs, [this, results] {
        m_scanStarting = false;
        auto *resultsScreen = dynamic_cast<BRDuplicateFilesViewDelegate *>(results.data());
        if (!resultsScreen)
            return;
        m_duplicateFileViewDelegate = resultsScreen;
        resultsScreen->startScanProcess(m_selectedUrl);
    });
}
