#include "KeepOneMenu.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace KeepOneMenu {

QMenu *make(QWidget *parent, bool offerFolder, const std::function<void(KeepOnePlan::Rule)> &chosen)
{
    auto *menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("keepOneMenu"));
    const auto add = [menu, chosen](const QString &text, KeepOnePlan::Rule rule) {
        QAction *action = menu->addAction(text);
        QObject::connect(action, &QAction::triggered, menu, [chosen, rule] { chosen(rule); });
    };
    add(QStringLiteral("Keep the Oldest Copy"), KeepOnePlan::Rule::Oldest);
    add(QStringLiteral("Keep the Newest Copy"), KeepOnePlan::Rule::Newest);
    add(QStringLiteral("Keep the Copy with the Shortest Path"), KeepOnePlan::Rule::ShortestPath);
    if (offerFolder)
        add(QStringLiteral("Keep the Copy in a Folder\u2026"), KeepOnePlan::Rule::InFolder);
    return menu;
}

QToolButton *makeButton(QWidget *parent, const QString &scope, bool offerFolder,
                        const std::function<void(KeepOnePlan::Rule)> &chosen)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("keepOneButton"));
    button->setText(QStringLiteral("Keep One"));
    button->setAccessibleName(QStringLiteral("Keep one copy of ") + scope);
    button->setToolTip(QStringLiteral("Keep one copy of ") + scope +
                       QStringLiteral(" and move the others to the Trash"));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(make(button, offerFolder, chosen));
    return button;
}

QString ruleText(KeepOnePlan::Rule rule, const QString &folderName)
{
    switch (rule) {
    case KeepOnePlan::Rule::Oldest:
        return QStringLiteral("the oldest");
    case KeepOnePlan::Rule::Newest:
        return QStringLiteral("the newest");
    case KeepOnePlan::Rule::ShortestPath:
        return QStringLiteral("the one with the shortest path");
    case KeepOnePlan::Rule::InFolder:
        return QStringLiteral("the one in \u201C%1\u201D").arg(folderName);
    }
    return QString();
}

} // namespace KeepOneMenu
