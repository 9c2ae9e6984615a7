#pragma once

#include <QFrame>

// A grouping box of the rename panels: a hairline grey border with rounded corners.
class BRRenameRoundedBox : public QFrame
{
    Q_OBJECT

public:
    explicit BRRenameRoundedBox(QWidget *parent = nullptr);
};
