#pragma once

#include <QWidget>

class BRDuplicateFilePreviewDelegate;
class QLabel;
class QTextEdit;
class QToolButton;

// One copy in the detail popover's list: its number, its path, its size and date, and the
// button that moves it to the Trash. The path is wrapped by the same text engine that
// measures the row, so a long path never spills out of its row.
class BRDuplicateFilePreviewTableViewCell : public QWidget
{
    Q_OBJECT

public:
    // The width in which the path wraps.
    static constexpr int pathWidth = 231;
    // The row's height beyond that of its path.
    static constexpr int fixedHeight = 52;
    static constexpr int preferredWidth = 312;
    // The line a row adds when it names the same file as another row.
    static constexpr int sameFileLineHeight = 18;

    explicit BRDuplicateFilePreviewTableViewCell(QWidget *parent = nullptr);

    QLabel *serialLabel() const { return m_serialLabel; }
    // Read-only, and wraps long names at any character where no word boundary is near.
    QTextEdit *pathLabel() const { return m_pathLabel; }
    QToolButton *deleteButton() const { return m_deleteButton; }
    QLabel *byteSizeLabel() const { return m_byteSizeLabel; }
    QLabel *modifiedDateLabel() const { return m_modifiedDateLabel; }

    void setDelegate(BRDuplicateFilePreviewDelegate *delegate) { m_delegate = delegate; }
    BRDuplicateFilePreviewDelegate *delegate() const { return m_delegate; }

    // Writes the path, its ">" separators in a lighter tone.
    void setPathText(const QString &display);
    QString pathText() const;

    // The delete button's action.
    void deleteAction();

    // While its copy is checked before it goes, the row says so in place of its button.
    void setChecking(bool checking);
    bool isChecking() const { return m_checking; }
    QLabel *checkingLabel() const { return m_checkingLabel; }
    // The row names the same file as row `serial` (counted from 1) under another name;
    // 0 when it is a copy of its own.
    void setSameFileAs(int serial);
    QLabel *sameFileLabel() const { return m_sameFileLabel; }

Q_SIGNALS:
    // Ctrl+Enter on the row: show its copy in the file manager.
    void revealRequested();
    // Up or Down on the row: the focus goes to the row `delta` away.
    void stepRequested(int delta);

public:
    static QFont pathFont();
    static QColor pathColor();
    static QColor hoverPathColor();
    static QColor separatorColor();
    static QColor deletingColor();

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setHovered(bool hovered);
    void applyColors();

    QLabel *m_serialLabel;
    QTextEdit *m_pathLabel;
    QToolButton *m_deleteButton;
    QLabel *m_byteSizeLabel;
    QLabel *m_modifiedDateLabel;
    QLabel *m_checkingLabel;
    QLabel *m_sameFileLabel;
    BRDuplicateFilePreviewDelegate *m_delegate = nullptr;
    bool m_hovered = false;
    // Once its copy is on the way to the Trash the row stays grey, hovered or not, until
    // the list is rebuilt.
    bool m_deleting = false;
    bool m_checking = false;
};
