#include "ScanSession.h"

#include "ScanThreads.h"

ScanSession::ScanSession(ReportHandler handler) : m_handler(std::move(handler)), m_finder(this) {}

std::shared_ptr<ScanSession> ScanSession::start(const QString &path, ReportHandler handler)
{
    auto session = std::make_shared<ScanSession>(std::move(handler));
    ScanThreads::start(session, path);
    return session;
}

void ScanSession::receive(const ScanReport &report)
{
    if (m_handler)
        m_handler(report);
}
