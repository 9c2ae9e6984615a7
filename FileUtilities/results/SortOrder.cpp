#include "SortOrder.h"
#include <QCoreApplication>

QString sortOrderTitle(SortOrder order)
{
    switch (order) {
    case SortOrder::All:
        return QCoreApplication::translate("SortOrder", "All");
    case SortOrder::Name:
        return QCoreApplication::translate("SortOrder", "Name");
    case SortOrder::Size:
        return QCoreApplication::translate("SortOrder", "Size");
    case SortOrder::Type:
        return QCoreApplication::translate("SortOrder", "Type");
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
