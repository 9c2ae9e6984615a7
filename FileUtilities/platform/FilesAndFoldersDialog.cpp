#include "FilesAndFoldersDialog.h"

#include <QFileInfo>
#include <QLineEdit>

FilesAndFoldersDialog::FilesAndFoldersDialog(QWidget *parent, const QString &caption,
                                             const QString &directory)
    : QFileDialog(parent, caption, directory)
{
    // Only Qt's own dialog lets its choice be taken over; the native ones end by themselves.
    setOption(QFileDialog::DontUseNativeDialog);
    setFileMode(QFileDialog::ExistingFiles);
    setAcceptMode(QFileDialog::AcceptOpen);
}

void FilesAndFoldersDialog::accept()
{
    if (!m_foldersChoosable || fileMode() == QFileDialog::Directory) {
        QFileDialog::accept();
        return;
    }
    // A path typed with a slash at its end is a folder to go into, as in every file dialog,
    // so a keyboard user can still walk the tree by typing.
    if (const auto *field = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        field && field->text().trimmed().endsWith(u'/')) {
        QFileDialog::accept();
        return;
    }
    const QStringList chosen = selectedFiles();
    bool anyFolder = false;
    for (const QString &path : chosen) {
        const QFileInfo info(path);
        if (!info.exists()) {
            // The dialog's own way: it says the name is not there and stays open.
            QFileDialog::accept();
            return;
        }
        anyFolder = anyFolder || info.isDir();
    }
    // The dialog itself would go into the folder rather than end with it.
    if (anyFolder) {
        QDialog::accept();
        return;
    }
    QFileDialog::accept();
}
