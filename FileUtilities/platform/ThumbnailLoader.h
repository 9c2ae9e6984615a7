#pragma once

#include "Thumbnail.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QThreadPool>

// Makes the pictures of list rows off the main thread, newest request first.
//
// A list asks for the picture of every row it paints. What is made already comes back at
// once; anything else is queued and `imageReady` tells when it can be painted. Rows that
// scrolled past long ago fall off the end of a short queue, so a fast scroll through a
// long list never leaves the workers busy with rows nobody sees.
class ThumbnailLoader : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailLoader(QObject *parent = nullptr);
    ~ThumbnailLoader() override;

    // The picture if it was made; else a null image, and the picture is queued.
    QImage imageFor(const Thumbnail &thumbnail);

Q_SIGNALS:
    void imageReady(const QString &path);

private:
    void startWorkerIfIdle();
    void work();
    void workerDone();
    void finished(const QString &path);

    static constexpr qsizetype maximumQueued = 64;
    QThreadPool m_pool;
    QMutex m_mutex;            // guards m_queue
    QList<Thumbnail> m_queue;  // newest last
    QSet<QString> m_requested; // queued or being made; main thread only
    int m_workers = 0;         // main thread only
};
