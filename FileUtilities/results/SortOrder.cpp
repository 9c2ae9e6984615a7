#include "SortOrder.h"

QString sortOrderTitle(SortOrder order)
{
    switch (order) {
    case SortOrder::All:
        return QStringLiteral("All");
    case SortOrder::Name:
        return QStringLiteral("Name");
    case SortOrder::Size:
        return QStringLiteral("Size");
    case SortOrder::Type:
        return QStringLiteral("Type");
    }
    Q_UNREACHABLE();
    return {};
}

std::optional<SortOrder> sortOrderFromTitle(const QString &title)
{
    for (const SortOrder order : allSortOrders) {
        if (sortOrderTitle(order) == title)
            return order;
    }
    return std::nullopt;
}
