#pragma once

#include <QImage>
#include <QWidget>

#include <optional>

class BRRenameViewDelegate;
class ExtensionSuffixLabel;
class QLabel;
class QLineEdit;

// The inside of a row's popover: a large picture of the file, its present name, and its
// new name, which can be typed over here as in the row. The rename screen fills it; the
// picture comes later, once it is made.
class BRFilePreviewPopoverViewController : public QWidget
{
    Q_OBJECT

public:
    static constexpr int imageSide = 260;

    explicit BRFilePreviewPopoverViewController(QWidget *parent = nullptr);

    void setDelegate(BRRenameViewDelegate *delegate) { m_delegate = delegate; }
    BRRenameViewDelegate *delegate() const { return m_delegate; }
    // The row this popover is about.
    void setIndex(std::optional<int> index) { m_index = index; }
    std::optional<int> index() const { return m_index; }

    void setCurrentName(const QString &name);
    void setImage(const QImage &image);
    // The only way the name becomes editable: a row without a name has nothing to edit.
    // `suffix` (".jpg") follows the name in a lighter tone: the whole name the file will have.
    void setEditableName(const QString &name, const QString &suffix = QString());
    // Why the file will not be renamed, or could not be, in red under its new name; "" hides it.
    void setProblem(const QString &why);

    QLabel *renameFileImageView() const { return m_renameFileImageView; }
    QLabel *renameFileCurrentLabel() const { return m_renameFileCurrentLabel; }
    QLineEdit *renameFileNewNameTextField() const { return m_renameFileNewNameTextField; }
    ExtensionSuffixLabel *extensionSuffix() const { return m_extensionSuffix; }
    QLabel *problemLabel() const { return m_problemLabel; }

public Q_SLOTS:
    void newNameAction();

private:
    QLabel *m_renameFileImageView;
    QLabel *m_renameFileCurrentLabel;
    QLineEdit *m_renameFileNewNameTextField;
    ExtensionSuffixLabel *m_extensionSuffix;
    QLabel *m_problemLabel;
    BRRenameViewDelegate *m_delegate = nullptr;
    std::optional<int> m_index;
};
