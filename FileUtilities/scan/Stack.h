#pragma once

#include <QList>

// A last-in, first-out list; the scan keeps its open folders in one.
template <typename T> struct Stack
{
    QList<T> items;

    void push(T item) { items.append(std::move(item)); }
    T pop() { return items.takeLast(); }
    qsizetype count() const { return items.size(); }
};
