#include "ScanSession.h"

#include <QThreadPool>

ScanSession::ScanSession(ReportHandler handler) : m_handler(std::move(handler)), m_finder(this) {}

std::shared_ptr<ScanSession> ScanSession::start(const QString &path, ReportHandler handler)
{
    auto session = std::make_shared<ScanSession>(std::move(handler));
    QThreadPool::globalInstance()->start(
        [session, path] { session->finder().findDuplicatesInFolder(path); });
    return session;
}

void ScanSession::updateDuplicateFiles(const GroupMap &dictOfDupeFiles, bool completeStatus,
                                       const QString &key, qint64 totalDuplicates,
                                       qint64 totalDupesSize)
{
    if (m_handler)
        m_handler(dictOfDupeFiles, completeStatus, key, totalDuplicates, totalDupesSize);
}
