#pragma once

#include <QMainWindow>

// The main window's look: a white background behind every screen.
class CustomWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit CustomWindow(QWidget *parent = nullptr);
};
