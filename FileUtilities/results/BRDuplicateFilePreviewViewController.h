#pragma once

#include "BRDuplicateFilePreviewDelegate.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QWidget>

#include <optional>

class BRDuplicateFilePreviewTableViewCell;
class BRDuplicateFilesViewDelegate;
class BRDuplicatePopOverTableView;
class FilePreviewView;
class QLabel;
class QToolButton;

// The inside of the detail popover of one group: a preview of the file beside the list of
// all its copies, each with its path, size, date and a button that moves it to the Trash.
// The results screen fills it and does the deleting; this screen asks and then reflects
// the answer.
class BRDuplicateFilePreviewViewController : public QWidget, public BRDuplicateFilePreviewDelegate
{
    Q_OBJECT

public:
    // What the results screen tells of the group.
    struct FileInfo
    {
        QString fileName;
        QString fileType;
        qint64 fileSize = 0; // one copy
    };

    explicit BRDuplicateFilePreviewViewController(QWidget *parent = nullptr);

    // Filled by the results screen, in this order, before showPreview and
    // setFileNameAndReloadData.
    void setDelegate(BRDuplicateFilesViewDelegate *delegate) { m_delegate = delegate; }
    void setKey(const QString &key) { m_key = key; }
    void setScanStatus(bool scanStatus) { m_scanStatus = scanStatus; }
    void setFilePaths(const QStringList &filePaths) { m_filePaths = filePaths; }
    void setFileInfo(const QString &key, const FileInfo &info) { m_fileInfo.insert(key, info); }
    // For each path, the row of an earlier path that names the same file, or -1.
    void setSameFileRows(const QList<int> &rows) { m_sameFileRows = rows; }

    // The copy at `path` is being checked before it goes: its row says so, and its button
    // is gone until the check ends.
    void setChecking(const QString &path, bool checking);
    bool isChecking(const QString &path) const { return m_checking.contains(path); }

    BRDuplicateFilesViewDelegate *delegate() const { return m_delegate; }
    const std::optional<QString> &key() const { return m_key; }
    bool scanStatus() const { return m_scanStatus; }
    const QStringList &filePaths() const { return m_filePaths; }
    const QHash<QString, FileInfo> &fileInfo() const { return m_fileInfo; }
    // The display form of the paths, by row.
    const QStringList &data() const { return m_data; }

    void showPreview(const std::optional<QUrl> &url);

    void deletePath(QObject *sender) override;
    void openURL(int row) override;
    void removeDataAtIndex(int row) override;
    void setFileNameAndReloadData(const QString &fileName) override;

    // "07 Mar 2018", or none when the file cannot be read.
    static std::optional<QString> getModifiedDateFromPath(const QString &path);
    static std::optional<QString> getByteSizeFromPath(const QString &path);
    // Every byte, in words: "1,234 bytes".
    static QString getSizeInBytes(qint64 bytes);
    // Puts the display form of the path of `row` into data at `row`.
    void insertSymbol(int row);
    // The height of `text` wrapped in the width of a row's path.
    static qreal calculateHeightForLabel(const QString &text);

    // The list's rows.
    int numberOfRowsInTableView() const { return static_cast<int>(m_filePaths.size()); }
    qreal heightOfRow(int row);
    BRDuplicateFilePreviewTableViewCell *viewForRow(int row);
    void reloadData();

    QWidget *previewView() const { return m_previewView; }
    FilePreviewView *prevView() const { return m_prevView; }
    BRDuplicatePopOverTableView *dupePreviewTableView() const { return m_dupePreviewTableView; }
    QLabel *fileNameLabel() const { return m_fileNameLabel; }
    QToolButton *keepOneButton() const { return m_keepOneButton; }
    BRDuplicateFilePreviewTableViewCell *cellAt(int row) const;

private:
    QWidget *m_previewView;
    BRDuplicatePopOverTableView *m_dupePreviewTableView;
    QLabel *m_fileNameLabel;
    QToolButton *m_keepOneButton;
    FilePreviewView *m_prevView;
    QHash<QString, FileInfo> m_fileInfo;
    bool m_scanStatus = false;
    std::optional<QString> m_key;
    QStringList m_data;
    QStringList m_filePaths;
    QList<int> m_sameFileRows;
    QSet<QString> m_checking;
    BRDuplicateFilesViewDelegate *m_delegate = nullptr;
};
