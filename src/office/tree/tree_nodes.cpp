#include "office/tree/tree_nodes.h"

#include "platform/values/errors.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Enough for a large show, so that the table of keys grows once at most while it is filled.
constexpr qsizetype kExpectedNodes = 32768;

std::unique_ptr<TreeNode> NewNode(const NodeKey& key, const QString& text, bool bold) {
    auto node = std::make_unique<TreeNode>();
    node->key = key;
    node->text = text;
    node->bold = bold;
    return node;
}

} // namespace

QString TreeNode::Key() const {
    return keyed ? key.ToText() : QString();
}

QString TreeNode::Tag() const {
    if (!tagged)
        return {};
    switch (key.kind) {
    case NodeKind::Ring:
        return key.ToText();
    case NodeKind::Class:
        return u'C' + QString::number(key.trida);
    case NodeKind::Dog:
        return u"P "_s + QString::number(key.id);
    case NodeKind::UnassignedRoot:
    case NodeKind::Breed:
        break;
    }
    return {};
}

TreeNode* TreeNode::NextSibling() const {
    const auto next = static_cast<std::size_t>(row) + 1;
    return next < siblings->size() ? (*siblings)[next].get() : nullptr;
}

TreeNodes::Rebuilding::Rebuilding(TreeNodes& nodes) : nodes_(nodes) {
    if (nodes_.observer_)
        nodes_.observer_->AboutToReset();
    nodes_.rebuilding_ = true;
    nodes_.topLevel_.clear();
    nodes_.byKey_.clear();
    nodes_.byKey_.reserve(kExpectedNodes);
    nodes_.onPath_.clear();
    nodes_.count_ = 0;
}

TreeNodes::Rebuilding::~Rebuilding() {
    nodes_.byKey_.squeeze();
    nodes_.rebuilding_ = false;
    if (nodes_.observer_)
        nodes_.observer_->Reset();
}

TreeNode* TreeNodes::Find(const QString& key) const {
    const std::optional<NodeKey> parsed = NodeKey::FromText(key);
    return parsed ? Find(*parsed) : nullptr;
}

TreeNode& TreeNodes::Get(const QString& key) const {
    if (TreeNode* node = Find(key))
        return *node;
    throw Error(u"Položka stromu \"%1\" neexistuje."_s.arg(key).toStdString());
}

TreeNode* TreeNodes::First() const {
    return topLevel_.empty() ? nullptr : topLevel_.front().get();
}

TreeNode* TreeNodes::Last() const {
    TreeNode* node = topLevel_.empty() ? nullptr : topLevel_.back().get();
    while (node && !node->children.empty())
        node = node->children.back().get();
    return node;
}

TreeNode* TreeNodes::Next(const TreeNode* node) const {
    if (TreeNode* child = node->FirstChild())
        return child;
    for (; node; node = node->parent)
        if (TreeNode* sibling = node->NextSibling())
            return sibling;
    return nullptr;
}

TreeNode* TreeNodes::Previous(const TreeNode* node) const {
    if (node->row == 0)
        return node->parent;
    TreeNode* previous = (*node->siblings)[static_cast<std::size_t>(node->row) - 1].get();
    while (!previous->children.empty())
        previous = previous->children.back().get();
    return previous;
}

TreeNode* TreeNodes::At(int position) const {
    TreeNode* node = position < 1 ? nullptr : First();
    for (int i = 1; node && i < position; ++i)
        node = Next(node);
    return node;
}

TreeNode* TreeNodes::AddUnassignedRoot(const QString& text) {
    return Append(nullptr, NewNode(NodeKey::UnassignedRoot(), text, true));
}

TreeNode* TreeNodes::AddRing(int id, const QString& text) {
    return Append(nullptr, NewNode(NodeKey::Ring(id), text, true));
}

TreeNode* TreeNodes::AddBreed(TreeNode* ring, int id, const QString& text) {
    return Append(ring, NewNode(NodeKey::Breed(id), text, true));
}

TreeNode* TreeNodes::AddClass(TreeNode* breed, int trida, const QString& text) {
    return Append(breed, NewNode(NodeKey::Class(breed->Id(), trida), text, false));
}

TreeNode* TreeNodes::AddDog(TreeNode* parent, int id, const QString& text, bool male) {
    auto node = NewNode(NodeKey::Dog(id), text, false);
    node->colour = male ? kMaleText : kFemaleText;
    return Append(parent, std::move(node));
}

TreeNode* TreeNodes::AddRingWithoutKey(const QString& text) {
    auto node = NewNode({NodeKind::Ring, 0, 0}, text, false);
    node->keyed = false;
    node->tagged = false;
    return Append(nullptr, std::move(node));
}

void TreeNodes::GiveKey(TreeNode* ring, int id) {
    ring->key = NodeKey::Ring(id);
    ring->keyed = true;
    byKey_.insert(ring->key, ring);
    if (observer_)
        observer_->Changed(ring);
}

TreeNode* TreeNodes::Append(TreeNode* parent, std::unique_ptr<TreeNode> node) {
    if (node->keyed && byKey_.contains(node->key))
        throw Error("Klíč stromu \"" + node->key.ToText().toStdString() + "\" je již použit.");
    TreeObserver* told = rebuilding_ ? nullptr : observer_;
    if (told)
        told->AboutToAppend(parent);
    TreeNode* added = PutIn(parent, std::move(node));
    if (added->keyed)
        byKey_.insert(added->key, added);
    ++count_;
    if (told)
        told->Appended();
    return added;
}

TreeNode* TreeNodes::PutIn(TreeNode* parent, std::unique_ptr<TreeNode> node) {
    TreeNode::Siblings& siblings = ChildrenOf(parent);
    node->parent = parent;
    node->siblings = &siblings;
    node->row = static_cast<int>(siblings.size());
    return siblings.emplace_back(std::move(node)).get();
}

std::unique_ptr<TreeNode> TreeNodes::TakeOut(TreeNode* node) {
    TreeNode::Siblings& siblings = ChildrenOf(node->parent);
    const auto place = siblings.begin() + node->row;
    std::unique_ptr<TreeNode> taken = std::move(*place);
    for (auto it = siblings.erase(place); it != siblings.end(); ++it)
        --(*it)->row;
    return taken;
}

void TreeNodes::Forget(const TreeNode* node) {
    for (const auto& child : node->children)
        Forget(child.get());
    if (node->keyed)
        byKey_.remove(node->key);
    std::erase(onPath_, node);
    --count_;
}

void TreeNodes::Remove(TreeNode* node) {
    if (observer_)
        observer_->AboutToRemove(node);
    Forget(node);
    TakeOut(node);
    if (observer_)
        observer_->Removed();
}

void TreeNodes::Move(TreeNode* node, TreeNode* newParent) {
    if (node->parent == newParent)
        return;
    if (observer_)
        observer_->AboutToMove(node, newParent);
    PutIn(newParent, TakeOut(node));
    if (observer_)
        observer_->Moved();
}

void TreeNodes::SetText(TreeNode* node, const QString& text) {
    node->text = text;
    if (observer_)
        observer_->Changed(node);
}

void TreeNodes::SetBold(TreeNode* node, bool bold) {
    node->bold = bold;
    if (observer_)
        observer_->Changed(node);
}

void TreeNodes::SetBackground(TreeNode* node, QRgb colour) {
    node->background = colour;
    if (observer_)
        observer_->Changed(node);
}

template<typename Visitor> void TreeNodes::ForEach(Visitor visit) const {
    for (TreeNode* node = First(); node; node = Next(node))
        visit(*node);
}

void TreeNodes::ClearDogBackgrounds() {
    ForEach([](TreeNode& node) {
        if (node.IsDog())
            node.background = kWhite;
    });
    if (observer_)
        observer_->Recoloured();
}

// kept: clearing-colours-takes-sexes
void TreeNodes::ClearAllColours() {
    ForEach([](TreeNode& node) {
        node.colour = kBlack;
        node.background = kWhite;
    });
    onPath_.clear();
    if (observer_)
        observer_->Recoloured();
}

void TreeNodes::ClearPath() {
    // Nothing but the path ever colours a node that isn't a dog.
    for (TreeNode* node : std::exchange(onPath_, {})) {
        node->colour = kBlack;
        node->background = kWhite;
        if (observer_)
            observer_->Changed(node);
    }
}

void TreeNodes::MarkOnPath(TreeNode* node) {
    node->colour = kPathText;
    node->background = kPathBackground;
    onPath_.push_back(node);
    if (observer_)
        observer_->Changed(node);
}

} // namespace lorvo
