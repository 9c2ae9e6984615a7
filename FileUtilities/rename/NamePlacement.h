#pragma once

// Where a rule puts its number or its text: after the name or before it.
enum class NamePlacement
{
    AfterName,
    BeforeName,
};
