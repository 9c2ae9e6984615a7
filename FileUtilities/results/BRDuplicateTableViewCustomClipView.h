#pragma once

#include <QWidget>

// The results list's viewport: white behind the rows.
class BRDuplicateTableViewCustomClipView : public QWidget
{
    Q_OBJECT

public:
    explicit BRDuplicateTableViewCustomClipView(QWidget *parent = nullptr);
};
