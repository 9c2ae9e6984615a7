#pragma once

#include "KeepOnePlan.h"

#include <functional>

class QMenu;
class QToolButton;
class QWidget;

// The "Keep One" button and its menu of the ways to choose the copy that stays, as the
// results header and the detail popover both offer them.
namespace KeepOneMenu {

QMenu *make(QWidget *parent, bool offerFolder,
            const std::function<void(KeepOnePlan::Rule)> &chosen);

// A button that opens the menu; `scope` says what it acts on, for tool tips and readers.
QToolButton *makeButton(QWidget *parent, const QString &scope, bool offerFolder,
                        const std::function<void(KeepOnePlan::Rule)> &chosen);

// "the oldest", "the one in “Photos”", as the confirmation and summary say it.
QString ruleText(KeepOnePlan::Rule rule, const QString &folderName);

} // namespace KeepOneMenu
