#pragma once
// The key of a node of the main tree: its kind and the number of the record behind it.

#include <QHashFunctions>
#include <QString>
#include <optional>

namespace lorvo {

enum class NodeKind : quint8 { UnassignedRoot, Ring, Breed, Class, Dog };

/// "K0" for the unassigned root, "K" + ring, "R" + breed, "TR" + breed + "|" + class, "P" + dog.
struct NodeKey {
    NodeKind kind = NodeKind::UnassignedRoot;
    qint32 id = 0;    ///< ID of the ring, breed or dog; of a class its breed's; 0 for the root
    qint32 trida = 0; ///< class number, of a class only

    static constexpr NodeKey UnassignedRoot() { return {}; }
    /// A ring's number 0 stands for the unassigned root.
    static constexpr NodeKey Ring(int id) {
        return id ? NodeKey{NodeKind::Ring, id, 0} : NodeKey{};
    }
    static constexpr NodeKey Breed(int id) { return {NodeKind::Breed, id, 0}; }
    static constexpr NodeKey Class(int breed, int trida) { return {NodeKind::Class, breed, trida}; }
    static constexpr NodeKey Dog(int id) { return {NodeKind::Dog, id, 0}; }

    /// Nullopt for a text that is not letter for letter the text of a key ("R05", "P", "TR5").
    [[nodiscard]] static std::optional<NodeKey> FromText(const QString& text);
    QString ToText() const;
    /// The number of the record behind a node of that kind; nullopt when `text` is no key of one.
    [[nodiscard]] static std::optional<int> IdIn(const QString& text, NodeKind kind);

    constexpr bool operator==(const NodeKey&) const = default;
};

inline size_t qHash(const NodeKey& key, size_t seed = 0) {
    return qHashMulti(seed, static_cast<quint8>(key.kind), key.id, key.trida);
}

} // namespace lorvo
