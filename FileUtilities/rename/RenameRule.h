#pragma once

// The two ways the list's files are named. The panels show each as a title; the list and
// the rules know only this.
enum class RenameRule
{
    // One new name for every file, with a running number.
    ChangeFullNames,
    // Each file's own base name with a text added.
    AddText,
};
