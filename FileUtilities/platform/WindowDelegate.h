#pragma once

// Whoever decides whether the main window may close. The screen that appeared last takes
// the part, so the guard always speaks for what the user sees.
class WindowDelegate
{
public:
    virtual ~WindowDelegate() = default;
    // True lets the window close; a guard may ask the user first.
    virtual bool windowShouldClose() = 0;
};

// A window that consults a WindowDelegate before it closes. A screen finds it through
// its top-level widget and makes itself the delegate when it appears.
class WindowDelegateHost
{
public:
    virtual ~WindowDelegateHost() = default;
    // The delegate must outlive its term or be replaced; null closes freely.
    virtual void setWindowDelegate(WindowDelegate *delegate) = 0;
    virtual WindowDelegate *windowDelegate() const = 0;
};
