#pragma once

#include <QString>

#include <array>
#include <optional>

// The orders of the results list.
enum class SortOrder
{
    All,  // the order the groups arrived in
    Name, // by name as people read it
    Size, // by the size of all copies together, largest first
    Type, // by type text in code point order
};

// Every order, as the sort menu lists them.
inline constexpr std::array<SortOrder, 4> allSortOrders{SortOrder::All, SortOrder::Name,
                                                        SortOrder::Size, SortOrder::Type};

// The order's item in the sort menu.
QString sortOrderTitle(SortOrder order);
// The order a menu item names; nothing for the menu's placeholder or any other text.
std::optional<SortOrder> sortOrderFromTitle(const QString &title);
