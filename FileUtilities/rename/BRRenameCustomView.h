#pragma once

#include <QWidget>

// The rename screen's ground: plain white.
class BRRenameCustomView : public QWidget
{
    Q_OBJECT

public:
    explicit BRRenameCustomView(QWidget *parent = nullptr);
};
