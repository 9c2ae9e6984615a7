#pragma once

// The mark a rename row carries beside its new name.
enum class RowMark
{
    None,
    Conflict, // the new name is in conflict: the row will not be renamed
    Failed,   // the last rename of the row failed
};
