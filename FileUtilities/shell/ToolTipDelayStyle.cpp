#include "ToolTipDelayStyle.h"

ToolTipDelayStyle::ToolTipDelayStyle(int delayMilliseconds) : m_delay(delayMilliseconds) {}

int ToolTipDelayStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                 QStyleHintReturn *returnData) const
{
    if (hint == QStyle::SH_ToolTip_WakeUpDelay)
        return m_delay;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
