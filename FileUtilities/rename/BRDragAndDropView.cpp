#include "BRDragAndDropView.h"

#include "BRDragAndDropImageView.h"
#include "BRRenameViewRenameButton.h"
#include "FileUrlDrag.h"
#include "Look.h"
#include "OpenPanel.h"
#include "RenameNotificationCenter.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QLabel>
#include <QVBoxLayout>

BRDragAndDropView::BRDragAndDropView(RenameNotificationCenter *center, OpenPanel &openPanel,
                                     QWidget *parent)
    : BRImageBackgroundView(QStringLiteral("renamebg"), Tone::Light, parent), m_center(center),
      m_openPanel(openPanel), m_view(new QWidget(this)),
      m_imageView(new BRDragAndDropImageView(center, m_view)),
      m_browseButton(new BRRenameViewRenameButton(m_view))
{
    setObjectName(QStringLiteral("dragAndDropView"));
    setAcceptDrops(true);
    m_view->setObjectName(QStringLiteral("view"));

    QLabel *headline =
        Look::label(m_view, 22, QFont::Medium, Look::Color::PrimaryText,
                    QCoreApplication::translate("BRDragAndDropView",
                                                "Drop files and folders here to rename them"));
    headline->setObjectName(QStringLiteral("invitationLabel"));
    QLabel *detail = Look::label(
        m_view, 14, QFont::Normal, Look::Color::SecondaryText,
        QCoreApplication::translate("BRDragAndDropView",
                                    "You see every new name before anything on disk changes."));
    detail->setObjectName(QStringLiteral("detailLabel"));
    for (QLabel *label : {headline, detail})
        label->setAlignment(Qt::AlignCenter);

    m_browseButton->setObjectName(QStringLiteral("browseButton"));
    m_browseButton->setText(QCoreApplication::translate("BRDragAndDropView", "Choose Files…"));
    m_browseButton->setFont(Look::font(17));
    m_browseButton->setMinimumWidth(200);
    m_browseButton->setCursor(Qt::PointingHandCursor);

    auto *content = new QVBoxLayout(m_view);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(0);
    content->addWidget(m_imageView, 0, Qt::AlignHCenter);
    content->addSpacing(28);
    content->addWidget(headline, 0, Qt::AlignHCenter);
    content->addSpacing(8);
    content->addWidget(detail, 0, Qt::AlignHCenter);
    content->addSpacing(26);
    content->addWidget(m_browseButton, 0, Qt::AlignHCenter);

    auto *layout = new QVBoxLayout(this);
    layout->addStretch(1);
    layout->addWidget(m_view, 0, Qt::AlignHCenter);
    layout->addStretch(1);

    connect(m_browseButton, &QPushButton::clicked, this, &BRDragAndDropView::browseAction);
}

OpenPanelRequest BRDragAndDropView::filesToRenameRequest(const QString &message,
                                                         const QString &prompt)
{
    OpenPanelRequest request;
    request.message = message;
    request.prompt = prompt;
    request.canChooseFiles = true;
    request.canChooseDirectories = true;
    request.canCreateDirectories = true;
    request.allowsMultipleSelection = true;
    request.showsHiddenFiles = false;
    return request;
}

void BRDragAndDropView::browseAction()
{
    const QList<QUrl> urls = m_openPanel.runModal(filesToRenameRequest(
        QCoreApplication::translate("BRDragAndDropView", "Choose files to rename"),
        QCoreApplication::translate("BRDragAndDropView", "Choose")));
    if (!urls.isEmpty())
        announce(urls);
}

void BRDragAndDropView::announce(const QList<QUrl> &urls)
{
    m_fileUrls = urls;
    if (m_center)
        Q_EMIT m_center->dragAndDropComplete(m_fileUrls);
}

void BRDragAndDropView::dragEnterEvent(QDragEnterEvent *event)
{
    // The whole view takes the drop; the picture shows that it will.
    m_imageView->setHighlighted(FileUrlDrag::acceptFiles(event));
}

void BRDragAndDropView::dragMoveEvent(QDragMoveEvent *event)
{
    m_imageView->setHighlighted(FileUrlDrag::acceptFiles(event));
}

void BRDragAndDropView::dragLeaveEvent(QDragLeaveEvent *)
{
    m_imageView->setHighlighted(false);
}

void BRDragAndDropView::dropEvent(QDropEvent *event)
{
    m_imageView->setHighlighted(false);
    if (FileUrlDrag::acceptFiles(event))
        announce(FileUrlDrag::fileUrls(event->mimeData()));
}
