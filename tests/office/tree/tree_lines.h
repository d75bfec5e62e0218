#pragma once
// A tree as text, one line a node: two blanks a level, key, text.

#include "office/tree/tree_nodes.h"

#include "support/print_qt.h"

#include <QStringList>

namespace lorvo::test {

inline QString TreeLine(int level, const QString& key, const QString& text) {
    return QString(2 * level, u' ') + key + u' ' + text;
}

inline QStringList TreeLines(const TreeNodes& nodes) {
    QStringList lines;
    for (const TreeNode* node = nodes.First(); node; node = nodes.Next(node)) {
        int level = 0;
        for (const TreeNode* above = node->parent; above; above = above->parent)
            ++level;
        lines.append(TreeLine(level, node->Key(), node->text));
    }
    return lines;
}

inline QStringList Keys(const std::vector<TreeNode*>& nodes) {
    QStringList keys;
    for (const TreeNode* node : nodes)
        keys.append(node->Key());
    return keys;
}

} // namespace lorvo::test
