#include "walk/node_list.h"

#include <stdexcept>

namespace lorvo::test {

using namespace Qt::StringLiterals;

std::size_t NodeList::Find(const QString& key) const {
    std::size_t at = 0;
    while (at < nodes_.size() && nodes_[at].key != key)
        ++at;
    return at;
}

std::size_t NodeList::At(const QString& key) const {
    const std::size_t at = Find(key);
    if (at == nodes_.size())
        throw std::runtime_error("no node " + key.toStdString());
    return at;
}

std::size_t NodeList::EndOf(std::size_t at) const {
    std::size_t end = at + 1;
    while (end < nodes_.size() && nodes_[end].depth > nodes_[at].depth)
        ++end;
    return end;
}

std::optional<std::size_t> NodeList::FirstChild(std::size_t at) const {
    return EndOf(at) > at + 1 ? std::optional(at + 1) : std::nullopt;
}

std::optional<std::size_t> NodeList::NextSibling(std::size_t at) const {
    const std::size_t end = EndOf(at);
    const bool isSibling = end < nodes_.size() && nodes_[end].depth == nodes_[at].depth;
    return isSibling ? std::optional(end) : std::nullopt;
}

std::optional<std::size_t> NodeList::Parent(std::size_t at) const {
    const int depth = nodes_[at].depth;
    while (at > 0 && nodes_[at].depth >= depth)
        --at;
    return nodes_[at].depth < depth ? std::optional(at) : std::nullopt;
}

QString NodeList::Parent(const QString& key) const {
    const auto parent = Parent(At(key));
    return parent ? nodes_[*parent].key : QString();
}

void NodeList::AddBelow(const QString& parent, const QString& key, const QString& text) {
    const std::size_t at = At(parent);
    const int depth = nodes_[at].depth + 1;
    nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(EndOf(at)), {key, text, depth});
}

void NodeList::Remove(const QString& key) {
    const std::size_t at = At(key);
    nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(at),
                 nodes_.begin() + static_cast<std::ptrdiff_t>(EndOf(at)));
}

void NodeList::Move(const QString& key, const QString& target) {
    if (Parent(key) == target)
        return;
    const std::size_t at = At(key);
    std::vector<Node> moved(nodes_.begin() + static_cast<std::ptrdiff_t>(at),
                            nodes_.begin() + static_cast<std::ptrdiff_t>(EndOf(at)));
    Remove(key);
    const std::size_t to = At(target);
    const int deeper = nodes_[to].depth + 1 - moved.front().depth;
    for (Node& node : moved)
        node.depth += deeper;
    nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(EndOf(to)), moved.begin(),
                  moved.end());
}

void NodeList::RemoveEmpty() {
    for (std::size_t at = nodes_.size(); at-- > 0;)
        if (!FirstChild(at) && !nodes_[at].key.startsWith(u'P'))
            nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(at));
}

QStringList NodeList::Keys(QChar letter) const {
    QStringList keys;
    for (const Node& node : nodes_)
        if (letter.isNull() || node.key.startsWith(letter))
            keys << node.key;
    return keys;
}

QStringList NodeList::Lines() const {
    QStringList lines;
    for (const Node& node : nodes_)
        lines << QString(2 * node.depth, u' ') + node.key + u' ' + node.text;
    return lines;
}

} // namespace lorvo::test
