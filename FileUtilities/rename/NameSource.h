#pragma once

// Whence a row's new name came. A rule run leaves a name the user typed as it is.
enum class NameSource
{
    Rule,
    HandEdit,
};
