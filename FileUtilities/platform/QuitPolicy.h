#pragma once

#include <QString>

#include <optional>

// What the window's close button or the Quit command would lose, and what to ask first.
//
// One function decides for every way out of the program, so the questions and their texts
// live in one place. It reads only what the caller gathered, and changes nothing: the
// caller shows the alert and, on "Quit", clears what the decision names.
namespace QuitPolicy {

// Where the request came from. A close is asked of the tool screen shown last, since each
// tool guards what it holds; before either was shown, a close asks what quitting asks.
enum class Request
{
    Quit,
    CloseOnDuplicates,
    CloseOnRename,
};

// What the program holds at the moment of asking. The duplicate results screen speaks for
// itself when it is the one closing; otherwise the application's own record is used.
struct Facts
{
    bool scanRunning = false;
    int groupsHeld = 0;
    int renameRows = 0;
};

// What "Quit" in the alert drops before the program goes.
enum class Clears
{
    Nothing,
    // The application's record of the duplicate side: no scan, no groups.
    ApplicationStatus,
    // The results screen's groups and scan, which also resets the application's record.
    DuplicateResults,
};

struct Alert
{
    QString title;
    QString message;
};

struct Decision
{
    // None: the request goes through without a word.
    std::optional<Alert> alert;
    Clears onQuit = Clears::Nothing;
    // "Cancel" on the Quit command brings the window back to the front.
    bool raiseWindowOnCancel = false;
};

Decision decide(Request request, const Facts &facts);

} // namespace QuitPolicy
