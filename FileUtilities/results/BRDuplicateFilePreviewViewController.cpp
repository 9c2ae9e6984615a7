#include "BRDuplicateFilePreviewViewController.h"

#include "BRDuplicateFilePreviewTableViewCell.h"
#include "BRDuplicateFilesViewDelegate.h"
#include "BRDuplicatePopOverTableView.h"
#include "BRQuickLookItem.h"
#include "ByteCountFormatter.h"
#include "FilePreviewView.h"
#include "KeepOneMenu.h"
#include "Look.h"
#include "UserLocale.h"

#include <QDateTime>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextOption>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtMath>

#include <QCoreApplication>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

namespace {

constexpr int margin = 16;

// The attributes of the entry itself, a link not followed. A failure is only told on the
// standard output: the row shows that it has no size instead.
std::optional<struct stat> entryStatus(const QString &path)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0) {
        const int error = errno;
        std::printf("Error: %s: %s\n", qUtf8Printable(path), std::strerror(error));
        std::fflush(stdout);
        return std::nullopt;
    }
    return status;
}

} // namespace

BRDuplicateFilePreviewViewController::BRDuplicateFilePreviewViewController(QWidget *parent)
    : QWidget(parent), m_previewView(new QWidget(this)),
      m_dupePreviewTableView(new BRDuplicatePopOverTableView(this)),
      m_fileNameLabel(new QLabel(this)), m_prevView(new FilePreviewView(m_previewView))
{
    setObjectName(QStringLiteral("BRDuplicateFilePreviewViewController"));
    m_previewView->setObjectName(QStringLiteral("previewView"));
    m_previewView->setFixedSize(FilePreviewView::side, FilePreviewView::side);
    m_prevView->setObjectName(QStringLiteral("prevView"));
    m_prevView->move(0, 0);
    // Shown once there is something to preview.
    m_prevView->hide();
    m_dupePreviewTableView->setPreviewDelegate(this);
    m_dupePreviewTableView->setFixedHeight(FilePreviewView::side);

    m_fileNameLabel->setObjectName(QStringLiteral("fileNameLabel"));
    Look::setTextStyle(m_fileNameLabel, 15, QFont::Bold, Look::Color::PrimaryText);
    m_fileNameLabel->setTextFormat(Qt::PlainText);
    // Keeping one copy of this group: the button stands at the end of the title line.
    m_keepOneButton = KeepOneMenu::makeButton(
        this, QCoreApplication::translate("BRDuplicateFilePreviewViewController", "this group"),
        true, [this](KeepOnePlan::Rule rule) {
            if (m_delegate && m_key)
                m_delegate->keepOneCopy(rule, {*m_key});
        });
    m_keepOneButton->hide();
    m_fileNameLabel->setFixedWidth(FilePreviewView::side + margin +
                                   m_dupePreviewTableView->width() -
                                   m_keepOneButton->sizeHint().width() - margin);

    auto *body = new QHBoxLayout;
    body->setSpacing(margin);
    body->addWidget(m_previewView, 0, Qt::AlignTop);
    body->addWidget(m_dupePreviewTableView, 0, Qt::AlignTop);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, 14, margin, margin);
    layout->setSpacing(12);
    auto *title = new QHBoxLayout;
    title->setSpacing(margin);
    title->addWidget(m_fileNameLabel);
    title->addWidget(m_keepOneButton, 0, Qt::AlignRight | Qt::AlignVCenter);
    layout->addLayout(title);
    layout->addLayout(body);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void BRDuplicateFilePreviewViewController::showPreview(const std::optional<QUrl> &url)
{
    if (!url || !m_prevView)
        return;
    const BRQuickLookItem item{url, url->fileName()};
    m_prevView->setPreviewItem(*item.previewItemURL);
    m_prevView->setToolTip(item.previewItemTitle.value_or(QString()));
    m_prevView->show();
}

void BRDuplicateFilePreviewViewController::setFileNameAndReloadData(const QString &fileName)
{
    // A long name is shortened in its middle, where its ending still tells its type.
    m_fileNameLabel->setText(m_fileNameLabel->fontMetrics().elidedText(fileName, Qt::ElideMiddle,
                                                                       m_fileNameLabel->width()));
    m_fileNameLabel->setToolTip(fileName);
    reloadData();
}

void BRDuplicateFilePreviewViewController::deletePath(QObject *sender)
{
    const int row = m_dupePreviewTableView->rowForView(qobject_cast<QWidget *>(sender));
    if (row < 0)
        return;
    if (m_delegate && m_key)
        m_delegate->updateAfterDelete(row, *m_key);
}

void BRDuplicateFilePreviewViewController::openURL(int row)
{
    if (row >= 0 && m_delegate && m_key)
        m_delegate->openURLData(row, *m_key);
}

void BRDuplicateFilePreviewViewController::removeDataAtIndex(int row)
{
    if (row < 0 || row >= m_filePaths.size())
        return;
    const QString path = m_filePaths.at(row);
    // The rows after it move up; what they name as the same file moves with them.
    QList<int> sameFileRows;
    for (qsizetype at = 0; at < m_filePaths.size(); ++at) {
        if (m_filePaths.at(at) == path)
            continue;
        const int earlier = at < m_sameFileRows.size() ? m_sameFileRows.at(at) : -1;
        const bool earlierGone = earlier >= 0 && m_filePaths.at(earlier) == path;
        sameFileRows.append(earlier < 0 || earlierGone ? -1 : earlier - (earlier > row ? 1 : 0));
    }
    m_sameFileRows = sameFileRows;
    m_filePaths.removeAll(path);
    m_checking.remove(path);
    reloadData();
}

void BRDuplicateFilePreviewViewController::setChecking(const QString &path, bool checking)
{
    if (checking)
        m_checking.insert(path);
    else
        m_checking.remove(path);
    const int row = static_cast<int>(m_filePaths.indexOf(path));
    if (BRDuplicateFilePreviewTableViewCell *cell = row >= 0 ? cellAt(row) : nullptr) {
        if (checking)
            cell->setChecking(true);
        else
            reloadData(); // a copy that stays gets its row back as it was
    }
}

std::optional<QString>
BRDuplicateFilePreviewViewController::getModifiedDateFromPath(const QString &path)
{
    const std::optional<struct stat> status = entryStatus(path);
    if (!status)
        return std::nullopt;
    return UserLocale::shortDate(QDateTime::fromSecsSinceEpoch(status->st_mtim.tv_sec));
}

std::optional<QString>
BRDuplicateFilePreviewViewController::getByteSizeFromPath(const QString &path)
{
    const std::optional<struct stat> status = entryStatus(path);
    if (!status)
        return std::nullopt;
    return getSizeInBytes(static_cast<qint64>(status->st_size));
}

QString BRDuplicateFilePreviewViewController::getSizeInBytes(qint64 bytes)
{
    return ByteCountFormatter::wholeBytes(bytes);
}

void BRDuplicateFilePreviewViewController::insertSymbol(int row)
{
    if (row < 0 || row >= m_filePaths.size())
        return;
    QString display = m_filePaths.at(row).mid(1);
    display.replace(QLatin1Char('/'), QStringLiteral(" > "));
    // Rows are asked for in order, so `data` reaches `row` before it is inserted at; older
    // entries move up, and only the one at `row` is read.
    while (m_data.size() < row)
        m_data.append(QString());
    m_data.insert(row, display);
}

qreal BRDuplicateFilePreviewViewController::calculateHeightForLabel(const QString &text)
{
    // Laid out as the row's path label lays it out: same font, width and wrapping.
    QTextDocument document;
    document.setDefaultFont(BRDuplicateFilePreviewTableViewCell::pathFont());
    document.setDocumentMargin(0);
    QTextOption option = document.defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document.setDefaultTextOption(option);
    document.setPlainText(text);
    document.setTextWidth(BRDuplicateFilePreviewTableViewCell::pathWidth);
    return document.size().height();
}

qreal BRDuplicateFilePreviewViewController::heightOfRow(int row)
{
    insertSymbol(row);
    if (row < 0 || row >= m_data.size())
        return BRDuplicateFilePreviewTableViewCell::fixedHeight;
    const bool sameFile = row < m_sameFileRows.size() && m_sameFileRows.at(row) >= 0;
    return calculateHeightForLabel(m_data.at(row)) +
           BRDuplicateFilePreviewTableViewCell::fixedHeight +
           (sameFile ? BRDuplicateFilePreviewTableViewCell::sameFileLineHeight : 0);
}

BRDuplicateFilePreviewTableViewCell *BRDuplicateFilePreviewViewController::viewForRow(int row)
{
    BRDuplicateFilePreviewTableViewCell *cell = m_dupePreviewTableView->makeView();
    cell->setDelegate(this);
    // The last copy of a group cannot be deleted from here.
    cell->deleteButton()->setHidden(m_filePaths.size() <= 1);
    cell->serialLabel()->setText(QString::number(row + 1) + QLatin1Char('.'));
    cell->setPathText(row >= 0 && row < m_data.size() ? m_data.at(row) : QString());
    cell->setSameFileAs(row >= 0 && row < m_sameFileRows.size() ? m_sameFileRows.at(row) + 1 : 0);
    if (row >= 0 && row < m_filePaths.size() && m_checking.contains(m_filePaths.at(row)))
        cell->setChecking(true);

    const std::optional<QString> modified = row >= 0 && row < m_filePaths.size()
                                                ? getModifiedDateFromPath(m_filePaths.at(row))
                                                : std::nullopt;
    const auto record = m_key ? m_fileInfo.constFind(*m_key) : m_fileInfo.constEnd();
    const QString path = row >= 0 && row < m_filePaths.size() ? m_filePaths.at(row) : QString();
    if (modified && record != m_fileInfo.constEnd()) {
        // Every row shows the size of one copy, as the group's record holds it.
        cell->byteSizeLabel()->setText(getSizeInBytes(record->fileSize));
        cell->modifiedDateLabel()->setText(
            QCoreApplication::translate("BRDuplicateFilePreviewViewController", "Modified:%1")
                .arg(*modified));
    } else {
        cell->byteSizeLabel()->setText(
            QCoreApplication::translate("BRDuplicateFilePreviewViewController", "Not Available"));
        cell->modifiedDateLabel()->setText(QString());
    }
    // What a screen reader says of the row: which copy, where, and what the row shows.
    QStringList details{cell->byteSizeLabel()->text()};
    if (!cell->modifiedDateLabel()->text().isEmpty())
        details.append(cell->modifiedDateLabel()->text());
    if (cell->isChecking())
        details.append(cell->checkingLabel()->text());
    if (!cell->sameFileLabel()->isHidden())
        details.append(cell->sameFileLabel()->text());
    cell->setAccessibleName(
        QCoreApplication::translate("BRDuplicateFilePreviewViewController", "Copy %1: %2")
            .arg(row + 1)
            .arg(path));
    cell->setAccessibleDescription(details.join(QStringLiteral(", ")));
    cell->pathLabel()->setAccessibleName(path);
    return cell;
}

void BRDuplicateFilePreviewViewController::reloadData()
{
    QList<BRDuplicateFilePreviewTableViewCell *> cells;
    for (int row = 0; row < numberOfRowsInTableView(); ++row) {
        const int height = qCeil(heightOfRow(row));
        BRDuplicateFilePreviewTableViewCell *cell = viewForRow(row);
        cell->setFixedHeight(height);
        cells.append(cell);
    }
    m_dupePreviewTableView->setRows(cells);
    // Tab goes through the copies and their buttons first, the title's button last.
    QWidget *previous = nullptr;
    for (BRDuplicateFilePreviewTableViewCell *cell : std::as_const(cells)) {
        if (previous)
            QWidget::setTabOrder(previous, cell);
        QWidget::setTabOrder(cell, cell->deleteButton());
        previous = cell->deleteButton();
    }
    if (previous)
        QWidget::setTabOrder(previous, m_keepOneButton);
    // Offered once the scan has ended, for a group with copies to spare.
    m_keepOneButton->setVisible(m_scanStatus && m_filePaths.size() > 1);
}

BRDuplicateFilePreviewTableViewCell *BRDuplicateFilePreviewViewController::cellAt(int row) const
{
    return m_dupePreviewTableView->viewAtRow(row);
}
