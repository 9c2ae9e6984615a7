#pragma once

#include <QLineEdit>

class QKeyEvent;

// A text field that handles the standard edit keys itself, so they work the same in every
// field whatever the window's shortcuts are: Ctrl+X, C, V, Z and A cut, copy, paste, undo
// and select all, and Ctrl+Shift+Z redoes. Any other combination (Ctrl+Alt+C, say) goes
// to the field's ordinary handling.
class CustomTextField : public QLineEdit
{
    Q_OBJECT

public:
    explicit CustomTextField(QWidget *parent = nullptr);

    // True when the key was one of the edit keys and the field could act on it.
    bool performKeyEquivalent(const QKeyEvent &event);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class EditAction
    {
        None,
        Cut,
        Copy,
        Paste,
        Undo,
        Redo,
        SelectAll
    };
    static EditAction editActionFor(const QKeyEvent &event);
    bool perform(EditAction action);
};
