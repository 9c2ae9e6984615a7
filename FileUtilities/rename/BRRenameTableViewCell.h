#pragma once

#include <QIcon>
#include <QImage>
#include <QString>
#include <QWidget>

#include "RowMark.h"

#include <optional>

class BRRenameViewDelegate;
class ExtensionSuffixLabel;
class QLabel;
class QLineEdit;
class QToolButton;

// The live row of the rename list: the list paints its rows, and lays one of these over
// the row under the mouse, and over a row whose name is being typed, so that its controls
// answer. It looks exactly like the painted row, so nothing moves when it comes or goes.
class BRRenameTableViewCell : public QWidget
{
    Q_OBJECT

public:
    explicit BRRenameTableViewCell(QWidget *parent = nullptr);

    void setDelegate(BRRenameViewDelegate *delegate) { m_delegate = delegate; }
    BRRenameViewDelegate *delegate() const { return m_delegate; }

    // The row's contents. A name that is absent or "" shows the placeholder and cannot be
    // edited: a hand edit always starts from a rule's name. `suffix` (".jpg") follows a name
    // in a lighter tone: the whole name the file will have.
    void setSourceFileName(const QString &name);
    void setDestinationName(const std::optional<QString> &name, const QString &suffix, bool edited);
    void setThumbnail(const QImage &image);
    // The red mark of a row in conflict or failed, with why as its tool tip.
    void setMark(RowMark mark, const QString &why);
    // The remove control shows only while the mouse is over the row.
    void setHovered(bool hovered);
    bool isHovered() const { return m_hovered; }
    // True while the user types a name in the row's field.
    bool isEditing() const;

    QLabel *sourceFilesImageView() const { return m_sourceFilesImageView; }
    QLabel *sourceFileNamesLabel() const { return m_sourceFileNamesLabel; }
    QLineEdit *destFileNameLabel() const { return m_destFileNameLabel; }
    QToolButton *removeButton() const { return m_removeButton; }
    QToolButton *popoverButton() const { return m_popoverButton; }
    ExtensionSuffixLabel *extensionSuffix() const { return m_extensionSuffix; }
    QLabel *markView() const { return m_markView; }

public Q_SLOTS:
    void setAttributes();
    void removeAction();
    void togglePopover();
    void textFieldAction();

Q_SIGNALS:
    // The row's field took or lost the keyboard focus.
    void editingChanged(bool editing);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void layoutParts();
    void updateSourceNameText();

    QLabel *m_sourceFilesImageView;
    QLabel *m_sourceFileNamesLabel;
    QLineEdit *m_destFileNameLabel;
    ExtensionSuffixLabel *m_extensionSuffix;
    QToolButton *m_removeButton;
    QToolButton *m_popoverButton;
    QLabel *m_markView;
    RowMark m_mark = RowMark::None;
    BRRenameViewDelegate *m_delegate = nullptr;
    QString m_sourceFileName;
    QImage m_thumbnail;
    bool m_hovered = false;
};
