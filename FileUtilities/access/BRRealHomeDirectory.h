#pragma once

#include <QString>

#include <optional>

// The user's home directory as the password database records it, whatever $HOME says.
class BRRealHomeDirectory
{
public:
    // Nothing when the user has no password entry (a container without one, say); the
    // caller decides what to offer instead.
    static std::optional<QString> RealHomeDirectory();
};
