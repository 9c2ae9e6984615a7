#pragma once

#include "BRRenameViewDelegate.h"
#include "RenamePanelControls.h"

#include <QLineEdit>
#include <QStringList>
#include <QWidget>

// Stands in for the rename screen: notes every call in order, in a readable form, with
// the widgets it was handed.
class RecordingRenameDelegate final : public BRRenameViewDelegate
{
public:
    QStringList calls;
    QWidget *lastSender = nullptr;
    QLineEdit *lastTextField = nullptr;
    // The text of the field at the moment it was handed over.
    QString lastFieldText;

    void renameUsingOption(const QString &newName, const QString &numberText,
                           NamePlacement where) override
    {
        calls << QStringLiteral("renameUsingOption(%1|%2|%3)")
                     .arg(newName, numberText, RenamePanelControls::placementTitle(where));
    }
    void renameUsingAddTextOption(const QString &text, NamePlacement where) override
    {
        calls << QStringLiteral("renameUsingAddTextOption(%1|%2)")
                     .arg(text, RenamePanelControls::placementTitle(where));
    }
    void clearDestinationFileNames() override
    {
        calls << QStringLiteral("clearDestinationFileNames");
    }
    void showPopOverForView(QWidget *sender) override
    {
        lastSender = sender;
        calls << QStringLiteral("showPopOverForView");
    }
    void showPopOver(int row) override { calls << QStringLiteral("showPopOver(%1)").arg(row); }
    void closePopOver() override { calls << QStringLiteral("closePopOver"); }
    void updateNewFileName(QLineEdit *textField, std::optional<int> row) override
    {
        lastTextField = textField;
        lastFieldText = textField ? textField->text() : QString();
        calls << QStringLiteral("updateNewFileName(%1)")
                     .arg(row ? QString::number(*row) : QStringLiteral("none"));
    }
    void removeRowFromTableView(QWidget *sender) override
    {
        lastSender = sender;
        calls << QStringLiteral("removeRowFromTableView");
    }
};
