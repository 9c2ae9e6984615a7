#include "QtOpenPanel.h"

#include "FilesAndFoldersDialog.h"

#include <QFileDialog>
#include <QFileSystemModel>
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

QList<QUrl> QtOpenPanel::runModal(const OpenPanelRequest &request)
{
    FilesAndFoldersDialog dialog(m_window, request.message, request.directory);
    // Qt's own dialog: the desktop's native one cannot disable entries.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFoldersChoosable(request.canChooseDirectories && request.canChooseFiles);
    if (request.canChooseDirectories && request.canChooseFiles) {
        // Files and folders both: "Open" takes the folders highlighted as well.
        dialog.setFileMode(QFileDialog::ExistingFiles);
        if (!request.allowsMultipleSelection)
            dialog.setFileMode(QFileDialog::ExistingFile);
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
    if (request.shouldEnable)
        dialog.setProxyModel(new EnabledPathsModel(request.shouldEnable)); // the dialog owns it
    if (dialog.exec() != QDialog::Accepted)
        return {};

    // A path typed by hand passes no greyed-out entry, so it is checked here as well.
    QList<QUrl> chosen;
    for (const QString &path : dialog.selectedFiles()) {
        if (!request.shouldEnable || request.shouldEnable(path))
            chosen.append(QUrl::fromLocalFile(path));
    }
    return chosen;
}
