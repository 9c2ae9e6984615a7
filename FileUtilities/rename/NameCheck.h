#pragma once

// What a row's new name meets, checked against the other rows and against its folder on
// disk before anything moves. Only a Free row is renamed.
enum class NameCheck
{
    Unchecked, // its name changed since the last check, or it was never checked
    NoName,    // no new name: the row is left alone
    Free,      // the name can be taken: the file will be renamed
    Unchanged, // the new name is the name the file has: left as it is
    // Conflicts: the row is not renamed, and says why.
    SameAsAnotherRow, // another row would get the same name in the same folder
    TakenInFolder,    // a file that stays where it is has that name in the folder
    DotOrDotDot,
    Slash,
    Nul,
    NotEncodable,
    TooLong,
};

// Whether the row is kept from renaming by something the user can change.
constexpr bool isConflict(NameCheck check)
{
    switch (check) {
    case NameCheck::Unchecked:
    case NameCheck::NoName:
    case NameCheck::Free:
    case NameCheck::Unchanged:
        return false;
    case NameCheck::SameAsAnotherRow:
    case NameCheck::TakenInFolder:
    case NameCheck::DotOrDotDot:
    case NameCheck::Slash:
    case NameCheck::Nul:
    case NameCheck::NotEncodable:
    case NameCheck::TooLong:
        return true;
    }
    return false;
}
