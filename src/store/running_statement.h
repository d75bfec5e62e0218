#pragma once
// Values in, rows out: the steps that record sets and queries share.

#include "store/statement_cache.h"
#include "store/value.h"

#include <vector>

namespace lorvo {

/// Binds the literals of `tokens`, and `parameters` in place of its question marks. Raises
/// StoreError when there are more or fewer of these, or when a number is too long.
void BindParameters(const CachedStatement& statement, const StatementTokens& tokens,
                    const std::vector<Value>& parameters);

/// Binds converted values as the parameters 1, 2, ... of a native statement.
void BindAll(const CachedStatement& statement, const std::vector<Value>& values);

/// Moves to the next row; false behind the last one. Raises StoreError.
[[nodiscard]] bool Step(const CachedStatement& statement);

/// Carries out a statement that yields no rows.
void Execute(const CachedStatement& statement);

} // namespace lorvo
