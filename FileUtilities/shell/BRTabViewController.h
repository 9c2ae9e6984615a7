#pragma once

#include <QStackedWidget>

// The two tools, one shown at a time: index 0 Duplicates, index 1 Rename.
class BRTabViewController : public QStackedWidget
{
    Q_OBJECT

public:
    static constexpr int duplicatesIndex = 0;
    static constexpr int renameIndex = 1;

    BRTabViewController(QWidget *duplicatesSide, QWidget *renameSide, QWidget *parent = nullptr);
};
