#include "CopyRemoval.h"

#include "ResultsLog.h"
#include "Workspace.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QPointer>
#include <QtConcurrent/QtConcurrentRun>

CopyRemoval::CopyRemoval(Workspace &workspace, QObject *parent)
    : QObject(parent), m_workspace(workspace), m_stop(std::make_shared<std::atomic<bool>>(false))
{
    m_pool.setMaxThreadCount(1);
    m_pool.setObjectName(QStringLiteral("copy removal"));
}

CopyRemoval::~CopyRemoval()
{
    // The work holds a reference to the workspace, which may go with the owner.
    m_stop->store(true);
    m_pool.waitForDone();
}

bool CopyRemoval::start(const Request &request)
{
    if (m_pending.contains(request.path))
        return false;
    m_pending.insert(request.path);
    const std::shared_ptr<std::atomic<bool>> stop = m_stop;
    const quint64 generation = m_generation;
    auto *watcher = new QFutureWatcher<Result>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, generation] {
        const Result result = watcher->result();
        watcher->deleteLater();
        if (generation != m_generation)
            return;
        m_pending.remove(result.request.path);
        Q_EMIT finished(result);
    });
    watcher->setFuture(
        QtConcurrent::run(&m_pool, [this, request, stop] { return run(request, *stop); }));
    return true;
}

void CopyRemoval::stopChecks()
{
    m_stop->store(true);
    m_stop = std::make_shared<std::atomic<bool>>(false);
}

void CopyRemoval::abandon()
{
    stopChecks();
    ++m_generation;
    m_pending.clear();
}

CopyRemoval::Result CopyRemoval::run(const Request &request, const std::atomic<bool> &stop) const
{
    Result result{request, Outcome::Cancelled, QString(), QString()};
    if (stop.load())
        return result;
    const CopyProof::Result proof =
        CopyProof::prove(request.path, request.scanned, request.otherPaths, stop);
    result.detail = proof.detail;
    switch (proof.outcome) {
    case CopyProof::Outcome::Proven: {
        const TrashResult trashed = m_workspace.moveToTrash(request.path);
        if (trashed.trashed) {
            result.outcome = Outcome::Trashed;
            result.detail = QStringLiteral("equal to ") + proof.equalCopy;
        } else {
            result.outcome = Outcome::TrashRefused;
            result.message = trashed.error;
        }
        return result;
    }
    case CopyProof::Outcome::Vanished:
        result.outcome = Outcome::Vanished;
        break;
    case CopyProof::Outcome::Changed:
        result.outcome = Outcome::Changed;
        break;
    case CopyProof::Outcome::LastCopy:
        result.outcome = Outcome::LastCopy;
        break;
    case CopyProof::Outcome::NotACopy:
        result.outcome = Outcome::NotACopy;
        break;
    case CopyProof::Outcome::Unreadable:
        result.outcome = Outcome::Unreadable;
        break;
    case CopyProof::Outcome::Cancelled:
        result.outcome = Outcome::Cancelled;
        break;
    }
    result.message = sentence(result.outcome, QFileInfo(request.path).fileName());
    if (result.outcome != Outcome::Cancelled && result.outcome != Outcome::Vanished)
        qCInfo(resultsLog).noquote() << "kept" << request.path << ":" << result.detail;
    return result;
}

QString CopyRemoval::sentence(Outcome outcome, const QString &name)
{
    // The quotation marks belong to the sentence: each language has its own.
    switch (outcome) {
    case Outcome::Changed:
        return QCoreApplication::translate("CopyRemoval",
                                           "“%1” has changed since the scan, so it was kept.")
            .arg(name);
    case Outcome::LastCopy:
        return QCoreApplication::translate(
                   "CopyRemoval", "“%1” is the last copy left in this group, so it was kept.")
            .arg(name);
    case Outcome::NotACopy:
        return QCoreApplication::translate(
                   "CopyRemoval",
                   "“%1” is not an exact copy of the other files in this group, so it was kept.")
            .arg(name);
    case Outcome::Unreadable:
        return QCoreApplication::translate(
                   "CopyRemoval",
                   "“%1” could not be compared with the other files in this group, so it was kept.")
            .arg(name);
    case Outcome::Trashed:
    case Outcome::Vanished:
    case Outcome::TrashRefused:
    case Outcome::Cancelled:
        break;
    }
    return QString();
}
