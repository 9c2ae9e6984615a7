#pragma once

#include <QWidget>

// The rename list's viewport: white behind the rows.
class BRRenameTableCustomClipView : public QWidget
{
    Q_OBJECT

public:
    explicit BRRenameTableCustomClipView(QWidget *parent = nullptr);
};
