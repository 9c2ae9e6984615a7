#pragma once

#include "RenameRule.h"

#include <QStackedWidget>

class BRAddTextViewController;
class BRChangeFileNameViewController;
class RenameNotificationCenter;

// The two rule panels, one at a time, in a fixed order that the panels rely on when they
// switch to each other: "Change full file names to" first, "Add text to existing names"
// second.
class BRRenameTabViewController : public QStackedWidget
{
    Q_OBJECT

public:
    static constexpr int changeFileNameIndex = 0;
    static constexpr int addTextIndex = 1;

    BRRenameTabViewController(RenameNotificationCenter *center, QWidget *parent = nullptr);

    QWidget *panelAt(int index) const { return widget(index); }
    BRChangeFileNameViewController *changeFileNameViewController() const
    {
        return m_changeFileName;
    }
    BRAddTextViewController *addTextViewController() const { return m_addText; }

    int selectedIndex() const { return currentIndex(); }
    void setSelectedIndex(int index) { setCurrentIndex(index); }
    // The panel of `rule`.
    static int indexOf(RenameRule rule);
    void showRule(RenameRule rule) { setSelectedIndex(indexOf(rule)); }

private:
    BRChangeFileNameViewController *m_changeFileName;
    BRAddTextViewController *m_addText;
};
