#pragma once

#include <QString>
#include <QWidget>

class BRRenameViewDelegate;
class QComboBox;
class QLineEdit;
class RenameNotificationCenter;

// The panel of the rule "Add text to existing names": a text put after or before each
// file's present name. Each change goes to the rename screen at once.
class BRAddTextViewController : public QWidget
{
    Q_OBJECT

public:
    static constexpr int TEXT_FIELD_LIMIT = 30;

    BRAddTextViewController(RenameNotificationCenter *center, QWidget *parent = nullptr);

    void setDelegate(BRRenameViewDelegate *delegate) { m_delegate = delegate; }
    BRRenameViewDelegate *delegate() const { return m_delegate; }

    // What was last sent to the screen.
    const QString &addText() const { return m_addText; }

    QComboBox *formatOption() const { return m_formatOption; }
    QLineEdit *addTextField() const { return m_addTextField; }
    QComboBox *whereOptionButton() const { return m_whereOptionButton; }

public Q_SLOTS:
    void controlTextDidChange(QLineEdit *field);
    void whereOptionAction();
    void formatOptionAction();
    void callDelegate();
    void clearText();
    void setAttributes();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QComboBox *m_formatOption;
    QLineEdit *m_addTextField;
    QComboBox *m_whereOptionButton;
    BRRenameViewDelegate *m_delegate = nullptr;
    QString m_addText;
};
