#pragma once

#include <QToolButton>

// An icon button that stands for one of several choices. Like ChoiceButton it reports
// its checked state to assistive tools and leaves the look of the choice to its icon.
class ChoiceToolButton : public QToolButton
{
    Q_OBJECT

public:
    explicit ChoiceToolButton(QWidget *parent = nullptr);

protected:
    void initStyleOption(QStyleOptionToolButton *option) const override;
};
