#pragma once

#include <QComboBox>

// The "Sort By" menu of the bar. It says when its list is about to open, so that the bar
// can take its placeholder out before the user sees the items.
class BRDuplicateSortPopUpButton : public QComboBox
{
    Q_OBJECT

public:
    explicit BRDuplicateSortPopUpButton(QWidget *parent = nullptr);

    void showPopup() override;

Q_SIGNALS:
    void willPopUp();
};
