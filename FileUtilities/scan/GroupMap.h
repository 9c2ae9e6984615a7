#pragma once

#include "GroupRecord.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

// An immutable-by-sharing map from group key to group record (a hash array mapped trie).
//
// Copying a GroupMap costs one reference count, and a copy never sees later changes of
// the original: a change copies only the path of nodes from the root to its key (a few
// nodes of at most 32 slots), and the rest stays shared. So the scan can hand "all groups
// so far" to the screen on every report in constant time, however many groups there are,
// and the screen's copy stays valid while the scan goes on.
//
// Nodes are never changed once shared, so copies may be read on different threads; one
// GroupMap object is changed and copied by one thread at a time.
class GroupMap
{
public:
    GroupMap() = default;

    qsizetype size() const { return m_size; }
    // True when both maps are the same version: one is an unchanged copy of the other.
    bool sharesRootWith(const GroupMap &other) const { return m_root == other.m_root; }
    bool isEmpty() const { return m_size == 0; }
    bool contains(const QString &key) const { return find(key) != nullptr; }

    // The record under `key`, valid as long as this map or a copy sharing it lives.
    const GroupRecord *find(const QString &key) const;
    std::optional<GroupRecord> value(const QString &key) const;

    // Adds the record, or replaces the one under the same key.
    void insert(const QString &key, GroupRecord record);
    // True when there was a record under `key`.
    bool remove(const QString &key);

    // Every entry, in an order fixed by the keys alone (the same for equal maps).
    void forEach(const std::function<void(const QString &, const GroupRecord &)> &visit) const;
    QStringList keys() const;

private:
    struct Leaf;
    struct Node;
    using LeafPointer = std::shared_ptr<const Leaf>;
    using NodePointer = std::shared_ptr<const Node>;

    static std::uint64_t hashOf(const QString &key);
    static NodePointer inserted(const NodePointer &node, unsigned shift, const LeafPointer &leaf,
                                bool &added);
    static NodePointer merged(const LeafPointer &a, const LeafPointer &b, unsigned shift);
    static NodePointer removed(const NodePointer &node, unsigned shift, const QString &key,
                               std::uint64_t hash, bool &found);
    static void visitNode(const Node &node,
                          const std::function<void(const QString &, const GroupRecord &)> &visit);

    NodePointer m_root;
    qsizetype m_size = 0;
};
