#include "QtOpenPanel.h"

#include "FilesAndFoldersDialog.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QListView>
#include <QMessageBox>
#include <QSortFilterProxyModel>

namespace {

// Shows every entry but leaves those that may not be chosen disabled.
class EnabledPathsModel final : public QSortFilterProxyModel
{
public:
    explicit EnabledPathsModel(std::function<bool(const QString &)> shouldEnable)
        : m_shouldEnable(std::move(shouldEnable))
    {}

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        Qt::ItemFlags flags = QSortFilterProxyModel::flags(index);
        const auto *files = qobject_cast<const QFileSystemModel *>(sourceModel());
        if (files && m_shouldEnable && !m_shouldEnable(files->filePath(mapToSource(index))))
            flags &= ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        return flags;
    }

private:
    std::function<bool(const QString &)> m_shouldEnable;
};

} // namespace

QtOpenPanel::QtOpenPanel(QWidget *window) : m_window(window) {}

bool QtOpenPanel::needsFilesAndFolders(const OpenPanelRequest &request)
{
    return request.canChooseFiles && request.canChooseDirectories;
}

void QtOpenPanel::configure(QFileDialog &dialog, const OpenPanelRequest &request)
{
    dialog.setWindowTitle(request.message);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (!request.prompt.isEmpty())
        dialog.setLabelText(QFileDialog::Accept, request.prompt);
    if (needsFilesAndFolders(request)) {
        // Files and folders both: "Open" takes the folders highlighted as well.
        dialog.setFileMode(request.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                           : QFileDialog::ExistingFile);
    } else if (request.canChooseDirectories) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog.setFileMode(request.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                           : QFileDialog::ExistingFile);
    }
    dialog.setOption(QFileDialog::ReadOnly, !request.canCreateDirectories);
    QDir::Filters filters = dialog.filter();
    filters.setFlag(QDir::Hidden, request.showsHiddenFiles);
    dialog.setFilter(filters);
}

QtOpenPanel::Screened QtOpenPanel::screen(const QStringList &paths, const OpenPanelRequest &request)
{
    Screened screened;
    for (const QString &path : paths) {
        if (!request.shouldEnable || request.shouldEnable(path))
            screened.chosen.append(QUrl::fromLocalFile(path));
        else
            screened.refused.append(path);
    }
    return screened;
}

QStringList QtOpenPanel::runDialog(const OpenPanelRequest &request)
{
    if (needsFilesAndFolders(request)) {
        FilesAndFoldersDialog dialog(m_window, request.message, request.directory);
        dialog.setFoldersChoosable(true);
        configure(dialog, request);
        if (request.shouldEnable)
            dialog.setProxyModel(new EnabledPathsModel(request.shouldEnable)); // it owns it
        return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
    }
    // The option left alone, Qt shows the platform's dialog if its theme has one, and its
    // own otherwise.
    QFileDialog dialog(m_window, request.message, request.directory);
    configure(dialog, request);
    // Qt builds its own dialog's widgets at once where the platform has no dialog; there
    // what may not be chosen is greyed out. A desktop's dialog has no list of ours, and
    // the choice is screened afterwards instead.
    if (request.shouldEnable && dialog.findChild<QListView *>(QStringLiteral("listView")))
        dialog.setProxyModel(new EnabledPathsModel(request.shouldEnable));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

QList<QUrl> QtOpenPanel::runModal(const OpenPanelRequest &request)
{
    for (;;) {
        const Screened screened = screen(runDialog(request), request);
        // A path typed by hand passes no greyed-out entry, so everything is screened.
        if (screened.refused.isEmpty() || request.refusal.isEmpty())
            return screened.chosen;
        QMessageBox::warning(m_window, request.message,
                             request.refusal.arg(screened.refused.first()));
    }
}
