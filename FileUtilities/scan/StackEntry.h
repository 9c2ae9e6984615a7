#pragma once

#include <QString>

#include <array>

// An open folder on the scan's stack: four texts, read by position.
using StackEntry = std::array<QString, 4>;

namespace StackEntryIndex {
constexpr size_t name = 0;
constexpr size_t path = 1;
constexpr size_t size = 2; // decimal text
constexpr size_t type = 3;
} // namespace StackEntryIndex
