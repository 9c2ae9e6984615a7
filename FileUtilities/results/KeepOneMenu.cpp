#include "KeepOneMenu.h"

#include <QAction>
#include <QCoreApplication>
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
    add(QCoreApplication::translate("KeepOneMenu", "Keep the Oldest Copy"),
        KeepOnePlan::Rule::Oldest);
    add(QCoreApplication::translate("KeepOneMenu", "Keep the Newest Copy"),
        KeepOnePlan::Rule::Newest);
    add(QCoreApplication::translate("KeepOneMenu", "Keep the Copy with the Shortest Path"),
        KeepOnePlan::Rule::ShortestPath);
    if (offerFolder)
        add(QCoreApplication::translate("KeepOneMenu", "Keep the Copy in a Folder…"),
            KeepOnePlan::Rule::InFolder);
    return menu;
}

QToolButton *makeButton(QWidget *parent, const QString &scope, bool offerFolder,
                        const std::function<void(KeepOnePlan::Rule)> &chosen)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("keepOneButton"));
    button->setText(QCoreApplication::translate("KeepOneMenu", "Keep One"));
    button->setAccessibleName(
        QCoreApplication::translate("KeepOneMenu", "Keep one copy of %1").arg(scope));
    button->setToolTip(QCoreApplication::translate(
                           "KeepOneMenu", "Keep one copy of %1 and move the others to the Trash")
                           .arg(scope));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(make(button, offerFolder, chosen));
    return button;
}

QString ruleText(KeepOnePlan::Rule rule, const QString &folderName)
{
    switch (rule) {
    case KeepOnePlan::Rule::Oldest:
        return QCoreApplication::translate("KeepOneMenu", "the oldest");
    case KeepOnePlan::Rule::Newest:
        return QCoreApplication::translate("KeepOneMenu", "the newest");
    case KeepOnePlan::Rule::ShortestPath:
        return QCoreApplication::translate("KeepOneMenu", "the one with the shortest path");
    case KeepOnePlan::Rule::InFolder:
        return QCoreApplication::translate("KeepOneMenu", "the one in “%1”").arg(folderName);
    }
    return QString();
}

} // namespace KeepOneMenu
