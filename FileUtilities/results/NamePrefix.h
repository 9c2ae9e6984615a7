#pragma once

#include "GroupRecord.h"

#include <QString>

#include <array>

// The first letters of a group's name in lower case, stored inline, so that a search can
// run through a hundred thousand names without a cache miss or an allocation per name.
struct NamePrefix
{
    static constexpr int capacity = 15;

    std::array<char16_t, capacity> units{};
    quint8 length = 0;
    bool complete = false; // the whole lower-cased name fits

    static NamePrefix of(const QString &name);
    // Whether the name, lower-cased, begins with `loweredQuery`.
    bool matches(const QString &loweredQuery, const GroupRecord &record) const;
};
