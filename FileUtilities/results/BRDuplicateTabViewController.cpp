#include "BRDuplicateTabViewController.h"

BRDuplicateTabViewController::BRDuplicateTabViewController(QWidget *startScreen,
                                                           QWidget *resultsScreen,
                                                           QWidget *statusScreen, QWidget *parent)
    : QStackedWidget(parent)
{
    setObjectName(QStringLiteral("BRDuplicateTabViewController"));
    insertWidget(startIndex, startScreen);
    insertWidget(resultsIndex, resultsScreen);
    insertWidget(statusIndex, statusScreen);
    setCurrentIndex(startIndex);
}

void BRDuplicateTabViewController::selectTabViewAtIndex(int index)
{
    setCurrentIndex(index);
}
