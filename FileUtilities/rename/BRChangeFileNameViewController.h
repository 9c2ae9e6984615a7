#pragma once

#include <QString>
#include <QWidget>

class BRRenameViewDelegate;
class QComboBox;
class QLineEdit;
class RenameNotificationCenter;

// The panel of the rule "Change full file names to": a text and a start number that every
// file takes, the number after or before the text. Each change goes to the rename screen
// at once, so the list shows the new names while the user types.
class BRChangeFileNameViewController : public QWidget
{
    Q_OBJECT

public:
    static constexpr int TEXT_FIELD_LIMIT = 30;

    BRChangeFileNameViewController(RenameNotificationCenter *center, QWidget *parent = nullptr);

    void setDelegate(BRRenameViewDelegate *delegate) { m_delegate = delegate; }
    BRRenameViewDelegate *delegate() const { return m_delegate; }

    // What was last sent to the screen.
    const QString &newNameText() const { return m_newNameText; }
    const QString &numberText() const { return m_numberText; }

    QComboBox *formatOptionButton() const { return m_formatOptionButton; }
    QLineEdit *newNameTextField() const { return m_newNameTextField; }
    QLineEdit *numberTextField() const { return m_numberTextField; }
    QComboBox *whereOptionButton() const { return m_whereOptionButton; }

public Q_SLOTS:
    // A keystroke in `field`, one of the panel's two fields.
    void controlTextDidChange(QLineEdit *field);
    void whereOptionAction();
    void formatOptionAction();
    void callDelegate();
    void clearText();
    void setAttributes();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QComboBox *m_formatOptionButton;
    QLineEdit *m_newNameTextField;
    QLineEdit *m_numberTextField;
    QComboBox *m_whereOptionButton;
    BRRenameViewDelegate *m_delegate = nullptr;
    QString m_newNameText;
    QString m_numberText;
};
