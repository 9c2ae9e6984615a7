#pragma once

#include <QWidget>

// The detail popover's list viewport: fully clear, so the popover shows through.
class BRDuplicateFilePreviewTableCustomClipView : public QWidget
{
    Q_OBJECT

public:
    explicit BRDuplicateFilePreviewTableCustomClipView(QWidget *parent = nullptr);
};
