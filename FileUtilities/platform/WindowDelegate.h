#pragma once

#include "QuitPolicy.h"

// A tool screen that closing the window asks about. The screen that appeared last takes
// the part, so the question is about what the user sees; the questions themselves are the
// quit policy's.
class WindowDelegate
{
public:
    virtual ~WindowDelegate() = default;
    // Which screen this is, for the policy.
    virtual QuitPolicy::Request closeRequest() const = 0;
    // Fills in what this screen knows better than the application's record.
    virtual void describeHoldings(QuitPolicy::Facts &facts) const = 0;
    // Drops everything the screen holds, once the user chose to quit anyway.
    virtual void clear() = 0;
};

// A window that consults a WindowDelegate before it closes. A screen finds it through
// its top-level widget and makes itself the delegate when it appears.
class WindowDelegateHost
{
public:
    virtual ~WindowDelegateHost() = default;
    // The delegate must outlive its term or be replaced; null: no tool was shown yet.
    virtual void setWindowDelegate(WindowDelegate *delegate) = 0;
    virtual WindowDelegate *windowDelegate() const = 0;
};
