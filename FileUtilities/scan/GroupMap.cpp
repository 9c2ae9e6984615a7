#include "GroupMap.h"

#include <bit>
#include <vector>

// A key's hash is consumed five bits per level; past the last bit, keys with equal
// hashes share one node's collision list.
namespace {
constexpr unsigned bitsPerLevel = 5;
constexpr unsigned hashBits = 64;

unsigned slotIndex(std::uint64_t hash, unsigned shift)
{
    return static_cast<unsigned>((hash >> shift) & 0x1f);
}
} // namespace

struct GroupMap::Leaf
{
    std::uint64_t hash;
    QString key;
    GroupRecord record;
};

struct GroupMap::Node
{
    struct Slot
    {
        LeafPointer leaf; // exactly one of leaf and child is set
        NodePointer child;
    };

    std::uint32_t bitmap = 0;            // which of the 32 slots are used
    std::vector<Slot> slots;             // the used ones, in slot order
    std::vector<LeafPointer> collisions; // only in nodes below the last hash bit

    qsizetype position(unsigned index) const
    {
        return std::popcount(bitmap & ((1u << index) - 1u));
    }
};

// FNV-1a over the UTF-16 units, then a 64-bit finaliser so that every five-bit level gets
// well-mixed bits. Fixed, unlike qHash's seeded hash, so iteration order is reproducible.
std::uint64_t GroupMap::hashOf(const QString &key)
{
    std::uint64_t hash = 0xcbf29ce484222325ULL;
    for (QChar c : key) {
        hash ^= c.unicode();
        hash *= 0x100000001b3ULL;
    }
    hash ^= hash >> 33;
    hash *= 0xff51afd7ed558ccdULL;
    hash ^= hash >> 33;
    hash *= 0xc4ceb9fe1a85ec53ULL;
    hash ^= hash >> 33;
    return hash;
}

const GroupRecord *GroupMap::find(const QString &key) const
{
    const std::uint64_t hash = hashOf(key);
    const Node *node = m_root.get();
    unsigned shift = 0;
    while (node) {
        if (shift >= hashBits) {
            for (const LeafPointer &leaf : node->collisions) {
                if (leaf->key == key)
                    return &leaf->record;
            }
            return nullptr;
        }
        const unsigned index = slotIndex(hash, shift);
        if (!(node->bitmap & (1u << index)))
            return nullptr;
        const Node::Slot &slot = node->slots[static_cast<size_t>(node->position(index))];
        if (slot.leaf)
            return slot.leaf->hash == hash && slot.leaf->key == key ? &slot.leaf->record : nullptr;
        node = slot.child.get();
        shift += bitsPerLevel;
    }
    return nullptr;
}

std::optional<GroupRecord> GroupMap::value(const QString &key) const
{
    if (const GroupRecord *record = find(key))
        return *record;
    return std::nullopt;
}

void GroupMap::insert(const QString &key, GroupRecord record)
{
    auto leaf = std::make_shared<const Leaf>(Leaf{hashOf(key), key, std::move(record)});
    bool added = false;
    m_root = inserted(m_root, 0, leaf, added);
    if (added)
        ++m_size;
}

GroupMap::NodePointer GroupMap::inserted(const NodePointer &node, unsigned shift,
                                         const LeafPointer &leaf, bool &added)
{
    auto copy = node ? std::make_shared<Node>(*node) : std::make_shared<Node>();
    if (shift >= hashBits) {
        for (LeafPointer &existing : copy->collisions) {
            if (existing->key == leaf->key) {
                existing = leaf;
                return copy;
            }
        }
        copy->collisions.push_back(leaf);
        added = true;
        return copy;
    }

    const unsigned index = slotIndex(leaf->hash, shift);
    const auto position = copy->position(index);
    if (!(copy->bitmap & (1u << index))) {
        copy->bitmap |= 1u << index;
        copy->slots.insert(copy->slots.begin() + position, Node::Slot{leaf, nullptr});
        added = true;
        return copy;
    }

    Node::Slot &slot = copy->slots[static_cast<size_t>(position)];
    if (slot.child) {
        slot.child = inserted(slot.child, shift + bitsPerLevel, leaf, added);
    } else if (slot.leaf->key == leaf->key) {
        slot.leaf = leaf;
    } else {
        slot.child = merged(slot.leaf, leaf, shift + bitsPerLevel);
        slot.leaf = nullptr;
        added = true;
    }
    return copy;
}

GroupMap::NodePointer GroupMap::merged(const LeafPointer &a, const LeafPointer &b, unsigned shift)
{
    auto node = std::make_shared<Node>();
    if (shift >= hashBits) {
        node->collisions = {a, b};
        return node;
    }
    const unsigned indexA = slotIndex(a->hash, shift);
    const unsigned indexB = slotIndex(b->hash, shift);
    if (indexA == indexB) {
        node->bitmap = 1u << indexA;
        node->slots.push_back({nullptr, merged(a, b, shift + bitsPerLevel)});
    } else {
        node->bitmap = (1u << indexA) | (1u << indexB);
        node->slots.push_back({indexA < indexB ? a : b, nullptr});
        node->slots.push_back({indexA < indexB ? b : a, nullptr});
    }
    return node;
}

bool GroupMap::remove(const QString &key)
{
    bool found = false;
    NodePointer root = removed(m_root, 0, key, hashOf(key), found);
    if (found) {
        m_root = std::move(root);
        --m_size;
    }
    return found;
}

// Gives the node without `key`, null when nothing is left in it; `found` tells whether
// the key was there (if not, the node is given back unchanged).
GroupMap::NodePointer GroupMap::removed(const NodePointer &node, unsigned shift, const QString &key,
                                        std::uint64_t hash, bool &found)
{
    if (!node)
        return node;
    if (shift >= hashBits) {
        for (size_t i = 0; i < node->collisions.size(); ++i) {
            if (node->collisions[i]->key != key)
                continue;
            found = true;
            if (node->collisions.size() == 1)
                return nullptr;
            auto copy = std::make_shared<Node>(*node);
            copy->collisions.erase(copy->collisions.begin() + static_cast<std::ptrdiff_t>(i));
            return copy;
        }
        return node;
    }

    const unsigned index = slotIndex(hash, shift);
    if (!(node->bitmap & (1u << index)))
        return node;
    const auto position = node->position(index);
    const Node::Slot &slot = node->slots[static_cast<size_t>(position)];

    NodePointer child;
    if (slot.leaf) {
        if (slot.leaf->key != key)
            return node;
        found = true;
    } else {
        child = removed(slot.child, shift + bitsPerLevel, key, hash, found);
        if (!found)
            return node;
    }

    auto copy = std::make_shared<Node>(*node);
    if (child) {
        copy->slots[static_cast<size_t>(position)].child = std::move(child);
        return copy;
    }
    copy->bitmap &= ~(1u << index);
    copy->slots.erase(copy->slots.begin() + position);
    if (copy->slots.empty())
        return nullptr;
    return copy;
}

void GroupMap::forEach(const std::function<void(const QString &, const GroupRecord &)> &visit) const
{
    if (m_root)
        visitNode(*m_root, visit);
}

void GroupMap::visitNode(const Node &node,
                         const std::function<void(const QString &, const GroupRecord &)> &visit)
{
    for (const Node::Slot &slot : node.slots) {
        if (slot.leaf)
            visit(slot.leaf->key, slot.leaf->record);
        else
            visitNode(*slot.child, visit);
    }
    for (const LeafPointer &leaf : node.collisions)
        visit(leaf->key, leaf->record);
}

QStringList GroupMap::keys() const
{
    QStringList result;
    result.reserve(m_size);
    forEach([&result](const QString &key, const GroupRecord &) { result.append(key); });
    return result;
}
