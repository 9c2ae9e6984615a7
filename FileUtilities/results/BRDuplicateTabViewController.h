#pragma once

#include "BRDuplicateTabViewDelegate.h"

#include <QStackedWidget>

// The duplicate side's screens, one at a time, in a fixed order that the screens rely on
// when they look for each other: the start screen, the results, the status screen.
class BRDuplicateTabViewController : public QStackedWidget, public BRDuplicateTabViewDelegate
{
    Q_OBJECT

public:
    static constexpr int startIndex = 0;
    static constexpr int resultsIndex = 1;
    static constexpr int statusIndex = 2;

    BRDuplicateTabViewController(QWidget *startScreen, QWidget *resultsScreen,
                                 QWidget *statusScreen, QWidget *parent = nullptr);

    void selectTabViewAtIndex(int index) override;
};
