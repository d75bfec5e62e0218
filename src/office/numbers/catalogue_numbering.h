#pragma once
// The walk that gives catalogue numbers: which dogs of the tree get one, and in which order.
// Standard library alone; works over any tree of nodes that know their neighbours.

#include "platform/values/errors.h"

#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>

namespace lorvo {

/// A pointer to a node that knows its first child, next sibling and parent (null for none) and
/// whether it is a dog.
template<typename Node>
concept NumberingNode = requires(Node* node) {
    { FirstChild(*node) } -> std::convertible_to<Node*>;
    { NextSibling(*node) } -> std::convertible_to<Node*>;
    { Parent(*node) } -> std::convertible_to<Node*>;
    { IsDog(*node) } -> std::convertible_to<bool>;
};

/// The node that the walk goes to from `node`, null when it is over. `first` is the first node at
/// the top level. A climb that comes to its last child and finds no sibling there is over, so that
/// dogs in rings are reached only when every breed has its ring (or the last breed without one is
/// empty: its own climb begins at `first` itself).
// kept: numbering-ends-outside-rings
template<NumberingNode Node> Node* NextOfNumberingWalk(Node* node, Node* first) {
    if (Node* child = FirstChild(*node))
        return child;
    if (Node* sibling = NextSibling(*node))
        return sibling;
    for (Node* parent = Parent(*node); parent; parent = Parent(*parent)) {
        if (Node* sibling = NextSibling(*parent))
            return sibling;
        if (Parent(*parent) == first)
            return nullptr;
    }
    return nullptr;
}

/// Visits each dog of the walk in order with its number, from 1. A number past 32,767 raises
/// RangeError before the dog is visited. What `visit` raises ends the walk.
template<NumberingNode Node>
void WalkForNumbering(Node* first, const std::function<void(Node&, std::int16_t)>& visit) {
    std::int16_t counter = 0;
    for (Node* node = first; node; node = NextOfNumberingWalk(node, first)) {
        if (!IsDog(*node))
            continue;
        if (counter == std::numeric_limits<std::int16_t>::max())
            throw RangeError("Katalogové číslo přesáhlo 32767.");
        visit(*node, ++counter);
    }
}

} // namespace lorvo
