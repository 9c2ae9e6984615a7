#include "ViewFader.h"

#include <QGraphicsOpacityEffect>
#include <QPointer>
#include <QPropertyAnimation>
#include <QTimer>
#include <QWidget>

namespace {

QGraphicsOpacityEffect *opacityEffectOf(QWidget *view)
{
    if (auto *effect = qobject_cast<QGraphicsOpacityEffect *>(view->graphicsEffect()))
        return effect;
    auto *effect = new QGraphicsOpacityEffect(view);
    effect->setOpacity(1.0);
    view->setGraphicsEffect(effect); // the view owns it
    return effect;
}

} // namespace

void ViewFader::fade(QWidget *view, double alpha, int durationMs, std::function<void()> finished)
{
    if (!view)
        return;
    QPointer<QWidget> guard(view);
    const auto done = [guard, alpha, finished = std::move(finished)] {
        if (!guard)
            return;
        setAlpha(guard, alpha);
        if (finished)
            finished();
    };
    if (durationMs <= 0) {
        QTimer::singleShot(0, view, done);
        return;
    }
    QGraphicsOpacityEffect *effect = opacityEffectOf(view);
    auto *animation = new QPropertyAnimation(effect, "opacity", view);
    animation->setDuration(durationMs);
    animation->setStartValue(effect->opacity());
    animation->setEndValue(alpha);
    QObject::connect(animation, &QPropertyAnimation::finished, view, done);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void ViewFader::setAlpha(QWidget *view, double alpha)
{
    if (!view)
        return;
    if (alpha >= 1.0) {
        view->setGraphicsEffect(nullptr); // deletes the effect
        return;
    }
    opacityEffectOf(view)->setOpacity(alpha);
}

double ViewFader::alpha(const QWidget *view)
{
    if (!view)
        return 1.0;
    if (auto *effect = qobject_cast<QGraphicsOpacityEffect *>(view->graphicsEffect()))
        return effect->opacity();
    return 1.0;
}
