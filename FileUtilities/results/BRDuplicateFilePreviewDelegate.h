#pragma once

#include <QString>

class QObject;

// What the detail popover offers to its rows, its list and the results screen.
class BRDuplicateFilePreviewDelegate
{
public:
    virtual ~BRDuplicateFilePreviewDelegate() = default;
    // A row's delete button was pressed; `sender` is that button.
    virtual void deletePath(QObject *sender) = 0;
    // A row was clicked off its delete button.
    virtual void openURL(int row) = 0;
    // The copy at `row` has gone to the Trash: the row leaves the list.
    virtual void removeDataAtIndex(int row) = 0;
    virtual void setFileNameAndReloadData(const QString &fileName) = 0;
};
