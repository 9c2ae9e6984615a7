#include "QuitPolicy.h"
#include <QCoreApplication>

namespace QuitPolicy {

namespace {

Alert quitAlert(const QString &message)
{
    return {QCoreApplication::translate("QuitPolicy", "Quit Quillmere?"), message};
}

QString scanInProgress()
{
    return QCoreApplication::translate(
        "QuitPolicy",
        "Duplicate files scan is in progress. Are you sure you want to quit Quillmere?");
}

QString resultsWillBeLost()
{
    return QCoreApplication::translate(
        "QuitPolicy", "The current list of the duplicate search results will be lost. Are "
                      "you sure you want to quit Quillmere?");
}

QString renameFilesSelected()
{
    return QCoreApplication::translate(
        "QuitPolicy",
        "There are files selected for rename. Are you sure you want to quit Quillmere?");
}

QString renameFilesAndResultsHeld()
{
    return QCoreApplication::translate(
        "QuitPolicy", "There are files selected for rename, and the current list of the "
                      "duplicate search results will be lost. Are you sure you want to quit "
                      "Quillmere?");
}

} // namespace

Decision decide(Request request, const Facts &facts)
{
    switch (request) {
    case Request::Quit:
        // The Quit command asks what the close button asks: a filled rename list is work
        // the user would lose as surely as the results.
        if (facts.scanRunning)
            return {quitAlert(scanInProgress()), Clears::ApplicationStatus, true};
        if (facts.groupsHeld > 0)
            return {
                quitAlert(facts.renameRows > 0 ? renameFilesAndResultsHeld() : resultsWillBeLost()),
                Clears::ApplicationStatus, true};
        if (facts.renameRows > 0)
            return {quitAlert(renameFilesSelected()), Clears::ApplicationStatus, true};
        return {};
    case Request::CloseOnDuplicates:
        if (facts.scanRunning)
            return {quitAlert(scanInProgress()), Clears::DuplicateResults, false};
        if (facts.groupsHeld > 0)
            return {
                quitAlert(facts.renameRows > 0 ? renameFilesAndResultsHeld() : resultsWillBeLost()),
                Clears::DuplicateResults, false};
        return {};
    case Request::CloseOnRename: {
        // The list in front of the user comes first; a running scan is not asked about here.
        const bool resultsHeld = !facts.scanRunning && facts.groupsHeld > 0;
        if (facts.renameRows > 0 && resultsHeld)
            return {quitAlert(renameFilesAndResultsHeld()), Clears::ApplicationStatus, false};
        if (facts.renameRows > 0)
            return {quitAlert(renameFilesSelected()), Clears::Nothing, false};
        if (resultsHeld)
            return {quitAlert(resultsWillBeLost()), Clears::ApplicationStatus, false};
        return {};
    }
    }
    return {};
}

} // namespace QuitPolicy
