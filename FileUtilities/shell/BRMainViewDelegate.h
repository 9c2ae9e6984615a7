#pragma once

// How the duplicate side tells the main view that a scan started or ended.
class BRMainViewDelegate
{
public:
    virtual ~BRMainViewDelegate() = default;
    virtual void updateTabStatus(bool scanRuns) = 0;
};
