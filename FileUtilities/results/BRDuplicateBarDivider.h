#pragma once

#include <QFrame>

// The faint line along the top of the bars under the results list; making one also gives
// the bar its pale ground, so the sort bar and the progress view look like one place.
class BRDuplicateBarDivider : public QFrame
{
    Q_OBJECT

public:
    explicit BRDuplicateBarDivider(QWidget *bar);
};
