#pragma once

#include <QFileDialog>

// Qt's own file dialog, in a mode where the files and the folders highlighted in it can be
// chosen together: "Open" takes whatever is highlighted, a folder included, while a
// double click on a folder still goes into it. Neither Qt's dialog nor the desktop's
// portal has such a mode of its own; this is how file managers' "Open with" and archive
// tools on Linux let one pick a mix.
class FilesAndFoldersDialog : public QFileDialog
{
    Q_OBJECT

public:
    FilesAndFoldersDialog(QWidget *parent, const QString &caption, const QString &directory);

    // Off: a plain Qt file dialog, in whatever file mode it is given.
    void setFoldersChoosable(bool choosable) { m_foldersChoosable = choosable; }
    bool foldersChoosable() const { return m_foldersChoosable; }

public Q_SLOTS:
    void accept() override;

private:
    bool m_foldersChoosable = true;
};
