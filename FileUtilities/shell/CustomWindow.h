#pragma once

#include "WindowDelegate.h"

#include <QMainWindow>

// The main window's look: a white background behind every screen.
class CustomWindow : public QMainWindow, public WindowDelegateHost
{
    Q_OBJECT

public:
    explicit CustomWindow(QWidget *parent = nullptr);

    void setWindowDelegate(WindowDelegate *delegate) override { m_windowDelegate = delegate; }
    WindowDelegate *windowDelegate() const override { return m_windowDelegate; }

private:
    WindowDelegate *m_windowDelegate = nullptr;
};
