#include "office/tree/node_search.h"

#include "office/tree/wildcard_pattern.h"

namespace lorvo {

namespace {

bool IsSearched(const TreeNode& node) {
    return node.Kind() == NodeKind::Breed || node.Kind() == NodeKind::Dog;
}

std::u16string LowerCase(const QString& text) {
    return text.toLower().toStdU16String();
}

} // namespace

// kept: search-text-is-a-pattern
TreeNode* FindByText(const TreeNodes& nodes, const QString& text, int& position) {
    const WildcardPattern pattern(u'*' + LowerCase(text) + u'*');
    int at = position;
    for (TreeNode* node = nodes.At(at); node; node = nodes.Next(node), ++at) {
        if (!IsSearched(*node) || !pattern.Matches(LowerCase(node->text)))
            continue;
        position = at + 1;
        return node;
    }
    return nullptr;
}

} // namespace lorvo
