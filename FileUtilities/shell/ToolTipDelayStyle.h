#pragma once

#include <QProxyStyle>

// The desktop's style with one change: tool tips open after the delay the program's
// settings name ("NSInitialToolTipDelay", in milliseconds).
class ToolTipDelayStyle : public QProxyStyle
{
    Q_OBJECT

public:
    explicit ToolTipDelayStyle(int delayMilliseconds);

    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

private:
    int m_delay;
};
