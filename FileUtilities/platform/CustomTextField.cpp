#include "CustomTextField.h"

#include <QKeyEvent>

CustomTextField::CustomTextField(QWidget *parent) : QLineEdit(parent) {}

CustomTextField::EditAction CustomTextField::editActionFor(const QKeyEvent &event)
{
    // Only these exact sets of modifiers count; the keypad flag says nothing of intent.
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier) {
        switch (event.key()) {
        case Qt::Key_X:
            return EditAction::Cut;
        case Qt::Key_C:
            return EditAction::Copy;
        case Qt::Key_V:
            return EditAction::Paste;
        case Qt::Key_Z:
            return EditAction::Undo;
        case Qt::Key_A:
            return EditAction::SelectAll;
        default:
            return EditAction::None;
        }
    }
    if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier) && event.key() == Qt::Key_Z)
        return EditAction::Redo;
    return EditAction::None;
}

bool CustomTextField::perform(EditAction action)
{
    // A field that cannot be edited has nothing to cut into or paste from.
    const bool editable = !isReadOnly();
    switch (action) {
    case EditAction::Cut:
        if (editable)
            cut();
        return editable;
    case EditAction::Copy:
        copy();
        return true;
    case EditAction::Paste:
        if (editable)
            paste();
        return editable;
    case EditAction::Undo:
        undo();
        return true;
    case EditAction::Redo:
        redo();
        return true;
    case EditAction::SelectAll:
        selectAll();
        return true;
    case EditAction::None:
        return false;
    }
    return false;
}

bool CustomTextField::performKeyEquivalent(const QKeyEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    return perform(editActionFor(event));
}

bool CustomTextField::event(QEvent *event)
{
    // Claim the edit keys before any window shortcut bound to the same keys can take them.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (editActionFor(*key) != EditAction::None) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void CustomTextField::keyPressEvent(QKeyEvent *event)
{
    if (performKeyEquivalent(*event)) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}
