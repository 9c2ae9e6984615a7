#pragma once

#include <QString>

#include <array>

// The views of the results list that the sort bar's buttons choose. All is every group;
// the others are the groups of one kind (see SubTypeFilter).
enum class SubType
{
    All,
    Photo,
    Music, // sound and film
    Document,
    Folder,
};

inline constexpr std::array<SubType, 5> allSubTypes{SubType::All, SubType::Photo, SubType::Music,
                                                    SubType::Document, SubType::Folder};

// "All", "Photo", "Music", "Document", "Folder".
QString subTypeName(SubType subType);
