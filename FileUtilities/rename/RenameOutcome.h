#pragma once

// What the last rename did with a row's file.
enum class RenameOutcome
{
    // Not attempted: no rename yet, or the row had no name or no file.
    NotTried,
    Succeeded,
    Failed,
};
