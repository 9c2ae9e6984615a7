#pragma once

#include <QColor>
#include <QMargins>
#include <QString>
#include <QWidget>

class QLineEdit;

// The extension a file keeps, shown in a lighter tone right after the name typed in a
// field: the user sees the whole name the file will have while only its base can be
// typed. It lies over the field, follows the text as it changes, and takes no clicks.
class ExtensionSuffixLabel : public QWidget
{
    Q_OBJECT

public:
    // `frame`: the field's border and padding on each side, as its style sheet gives them.
    ExtensionSuffixLabel(QLineEdit *field, const QMargins &frame);

    // ".png", or "" for none (the field then gets its whole width back).
    void setSuffix(const QString &suffix);
    QString suffix() const { return m_suffix; }
    void setColor(const QColor &color);

    // The room the suffix needs after the text, in the field's font.
    static int widthFor(const QFontMetrics &metrics, const QString &suffix);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();

    QLineEdit *m_field;
    QMargins m_frame;
    QString m_suffix;
    QColor m_color;
};
