#pragma once
// From words to a tree: the grammar of the store's habitual dialect.

#include "store/statement_tokens.h"
#include "store/statement_tree.h"

namespace lorvo {

/// Raises StoreError where the words make no statement, and on brackets nested beyond any use.
Statement ParseStatement(const std::vector<Token>& tokens);

} // namespace lorvo
