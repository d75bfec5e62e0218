#pragma once
// The nodes of a tree as a plain list: key, text and depth, each node before those below it.

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace lorvo::test {

class NodeList {
  public:
    struct Node {
        QString key;
        QString text;
        int depth = 0;
    };

    void Clear() { nodes_.clear(); }
    void Add(const QString& key, const QString& text, int depth) {
        nodes_.push_back({key, text, depth});
    }
    /// Adds below a node, behind all that is there.
    void AddBelow(const QString& parent, const QString& key, const QString& text);
    /// Removes a node with all below it.
    void Remove(const QString& key);
    /// Makes the node the last one below `target`; below its own parent it stays where it is.
    void Move(const QString& key, const QString& target);
    void SetText(const QString& key, const QString& text) { nodes_[At(key)].text = text; }
    /// Nodes with nothing below them that aren't dogs, from the last to the first.
    void RemoveEmpty();

    bool Has(const QString& key) const { return Find(key) < nodes_.size(); }
    QString Text(const QString& key) const { return nodes_[At(key)].text; }
    QString Parent(const QString& key) const; ///< empty at the top
    // The same by places in All().
    std::optional<std::size_t> FirstChild(std::size_t at) const;
    std::optional<std::size_t> NextSibling(std::size_t at) const;
    std::optional<std::size_t> Parent(std::size_t at) const;
    const std::vector<Node>& All() const { return nodes_; }
    /// Keys that begin with the letter; all for none.
    QStringList Keys(QChar letter = {}) const;
    /// A line for each node, for comparing.
    QStringList Lines() const;

  private:
    std::size_t Find(const QString& key) const;
    std::size_t At(const QString& key) const;
    std::size_t EndOf(std::size_t at) const;

    std::vector<Node> nodes_;
};

} // namespace lorvo::test
