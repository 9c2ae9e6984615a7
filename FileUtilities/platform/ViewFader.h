#pragma once

#include <QObject>

#include <functional>

class QWidget;

// Fades a widget's opacity and runs a step when the fade ends, the way every change of
// screen happens: the old view goes to 0, the change is made, the new view comes to 1.
class ViewFader
{
public:
    // Animates `view` from its current opacity to `alpha` over `durationMs` and then runs
    // `finished` (unless `view` was destroyed meanwhile). A duration of 0 or less sets the
    // opacity at once and runs `finished` from the event loop, as a finished animation would.
    static void fade(QWidget *view, double alpha, int durationMs,
                     std::function<void()> finished = {});
    // Sets the opacity at once; an opacity of 1 removes the effect, so the view paints as
    // it ordinarily does.
    static void setAlpha(QWidget *view, double alpha);
    static double alpha(const QWidget *view);
};
