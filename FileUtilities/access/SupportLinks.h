#pragma once

#include <QString>

// Where the program points people for help and more: set here, once, by whoever ships it.
namespace SupportLinks {
inline QString website()
{
    return QStringLiteral("https://brackenhale.app");
}
inline QString termsPage()
{
    return website() + QStringLiteral("/terms");
}
inline QString supportAddress()
{
    return QStringLiteral("support@brackenhale.app");
}
inline QString mailSubject()
{
    return QStringLiteral("I have a query about Quillmere");
}
} // namespace SupportLinks
