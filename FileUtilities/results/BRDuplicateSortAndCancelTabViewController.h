#pragma once

#include "BRDuplicateSortAndCancelDelegate.h"

#include <QStackedWidget>

// The strip under the results list: the sort and sub-type bar once a scan has ended, the
// progress view while one runs.
class BRDuplicateSortAndCancelTabViewController : public QStackedWidget,
                                                  public BRDuplicateSortAndCancelDelegate
{
    Q_OBJECT

public:
    static constexpr int sortIndex = 0;
    static constexpr int cancelIndex = 1;

    BRDuplicateSortAndCancelTabViewController(QWidget *sortView, QWidget *cancelView,
                                              QWidget *parent = nullptr);

    void selectTabAtIndex(int index) override;
};
