#pragma once

#include "NamePlacement.h"

#include <QString>

#include <optional>

class QLineEdit;
class QWidget;

// What the rename panels, rows and popover ask of the rename screen. The screen alone
// implements it; every call arrives on the main thread.
class BRRenameViewDelegate
{
public:
    virtual ~BRRenameViewDelegate() = default;

    virtual void renameUsingOption(const QString &newName, const QString &numberText,
                                   NamePlacement where) = 0;
    virtual void renameUsingAddTextOption(const QString &text, NamePlacement where) = 0;
    virtual void clearDestinationFileNames() = 0;
    // sender: a widget inside a row of the list.
    virtual void showPopOverForView(QWidget *sender) = 0;
    virtual void showPopOver(int row) = 0;
    virtual void closePopOver() = 0;
    // Without a row, the row is the one that holds the field.
    virtual void updateNewFileName(QLineEdit *textField, std::optional<int> row) = 0;
    virtual void removeRowFromTableView(QWidget *sender) = 0;
};
