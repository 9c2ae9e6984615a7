#include "ChoiceAccessible.h"

#include <QAbstractButton>

namespace {

QAccessibleInterface *choiceAccessible(const QString &className, QObject *object)
{
    if (className != QLatin1String("ChoiceButton") &&
        className != QLatin1String("ChoiceToolButton"))
        return nullptr;
    auto *button = qobject_cast<QAbstractButton *>(object);
    return button ? new ChoiceAccessible(button) : nullptr;
}

} // namespace

ChoiceAccessible::ChoiceAccessible(QAbstractButton *button)
    : QAccessibleWidget(button, QAccessible::RadioButton)
{}

void ChoiceAccessible::install()
{
    static const bool installed = [] {
        QAccessible::installFactory(choiceAccessible);
        return true;
    }();
    Q_UNUSED(installed);
}

QAbstractButton *ChoiceAccessible::button() const
{
    return static_cast<QAbstractButton *>(widget());
}

QAccessible::State ChoiceAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    return state;
}

QString ChoiceAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    if (!button()->accessibleName().isEmpty())
        return button()->accessibleName();
    QString title = button()->text();
    title.remove(QLatin1Char('&'));
    return title;
}

QStringList ChoiceAccessible::actionNames() const
{
    if (!button()->isEnabled())
        return {};
    return {pressAction(), toggleAction()};
}

void ChoiceAccessible::doAction(const QString &actionName)
{
    if (!button()->isEnabled())
        return;
    if (actionName == pressAction() || actionName == toggleAction())
        button()->click();
    else
        QAccessibleWidget::doAction(actionName);
}
