#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

// How ChoiceButton and ChoiceToolButton appear to assistive tools: a radio button, one
// choice of several, checked while chosen. Qt's own interface for a checkable button
// "toggles" it without a click, so a screen reader's user would check a tool or a
// sub-type that the screens never hear of; here both actions press the button, exactly
// as a click or the space bar does.
class ChoiceAccessible : public QAccessibleWidget
{
public:
    explicit ChoiceAccessible(QAbstractButton *button);

    // Registers the interface with Qt for both button classes, once.
    static void install();

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

private:
    QAbstractButton *button() const;
};
