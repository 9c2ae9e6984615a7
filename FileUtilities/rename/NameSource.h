#pragma once

// Whence a row's new name came. A rule run names only the rows that follow it: a name the
// user typed, and one a failed rename is to try again, stay as they are.
enum class NameSource
{
    Rule,
    HandEdit,
    // The name a rename failed to give, brought back with its row for another try.
    EarlierRun,
};
