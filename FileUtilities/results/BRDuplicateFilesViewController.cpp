#include "BRDuplicateFilesViewController.h"

// Being written: a skeleton that links.
BRDuplicateFilesViewController::BRDuplicateFilesViewController(AlertPresenter &alerts,
                                                               Workspace &workspace,
                                                               ApplicationStatus *appDelegate,
                                                               QWidget *parent)
    : QWidget(parent), m_alerts(alerts), m_workspace(workspace), m_appDelegateTarget(appDelegate)
{
    setObjectName(QStringLiteral("BRDuplicateFilesViewController"));
}
BRDuplicateFilesViewController::~BRDuplicateFilesViewController() = default;
void BRDuplicateFilesViewController::setDuplicateMainViewDelegate(
    BRDuplicateFilesMainViewDelegate *delegate)
{
    m_duplicateMainViewDelegate = delegate;
}
void BRDuplicateFilesViewController::updateDuplicateFiles(const GroupMap &, bool, const QString &,
                                                          qint64, qint64)
{}
void BRDuplicateFilesViewController::updateAfterDelete(int, const QString &) {}
void BRDuplicateFilesViewController::openURLData(int, const QString &) {}
void BRDuplicateFilesViewController::showPopOverView(int) {}
void BRDuplicateFilesViewController::showPopOverForView(QObject *) {}
void BRDuplicateFilesViewController::closePopOver() {}
void BRDuplicateFilesViewController::startScanProcess(const std::optional<QUrl> &) {}
void BRDuplicateFilesViewController::startNewScanProcess() {}
void BRDuplicateFilesViewController::sortMainType(const QString &, bool) {}
void BRDuplicateFilesViewController::sortSubType(const QString &, const QString &) {}
void BRDuplicateFilesViewController::cancelScanProcess() {}
void BRDuplicateFilesViewController::updateScanStatus(bool) {}
bool BRDuplicateFilesViewController::windowShouldClose()
{
    return true;
}
void BRDuplicateFilesViewController::showEvent(QShowEvent *) {}
