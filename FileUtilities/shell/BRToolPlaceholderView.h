#pragma once

#include <QWidget>

// Stands in a tool's tab until that tool's screens exist, and says so.
class BRToolPlaceholderView : public QWidget
{
    Q_OBJECT

public:
    BRToolPlaceholderView(const QString &toolName, const QString &description,
                          QWidget *parent = nullptr);
};
