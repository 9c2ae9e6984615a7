#include "BRDuplicateSortAndCancelTabViewController.h"

BRDuplicateSortAndCancelTabViewController::BRDuplicateSortAndCancelTabViewController(
    QWidget *sortView, QWidget *cancelView, QWidget *parent)
    : QStackedWidget(parent)
{
    setObjectName(QStringLiteral("BRDuplicateSortAndCancelTabViewController"));
    insertWidget(sortIndex, sortView);
    insertWidget(cancelIndex, cancelView);
    setCurrentIndex(sortIndex);
    // Both children are one-line bars; neither should stretch the strip.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void BRDuplicateSortAndCancelTabViewController::selectTabAtIndex(int index)
{
    setCurrentIndex(index);
}
