#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

#include <type_traits>
#include <utility>

// Runs `work` on the shared thread pool and hands its result to `done` on the thread of
// `context`, unless `context` is gone by then: the watcher is a child of the context and
// goes with it, while the work finishes on its own and its result is dropped.
template <typename Work, typename Done> void runOnWorker(QObject *context, Work work, Done done)
{
    using Result = std::invoke_result_t<Work>;
    auto *watcher = new QFutureWatcher<Result>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context,
                     [watcher, done = std::move(done)]() mutable {
                         done(watcher->result());
                         watcher->deleteLater();
                     });
    watcher->setFuture(QtConcurrent::run(std::move(work)));
}

// Lets go of `value` on the shared thread pool: freeing a large copy there (the ten
// thousand rows a run worked on) costs the main thread no frame.
template <typename Value> void releaseOnWorker(Value &&value)
{
    QThreadPool::globalInstance()->start([held = std::forward<Value>(value)] { Q_UNUSED(held) });
}
