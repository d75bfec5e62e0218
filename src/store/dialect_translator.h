#pragma once
// The store's habitual dialect, made into SQLite's. A statement is cut into words, parsed and
// written anew from the schema's own names; nothing of its text is copied.

#include "store/schema.h"
#include "store/statement_tokens.h"

#include <string>
#include <vector>

namespace lorvo {

struct ResultColumn {
    std::string name; ///< by which a reader asks for it
    FieldType type;
    std::string table; ///< of a plain field: its table's name in the statement
    std::string field; ///< of a plain field: its name in that table; empty otherwise
};

struct Translation {
    std::string sql; ///< literals and question marks are ?1, ?2, ...
    bool isSelect = false;
    std::vector<ResultColumn> columns;
    /// Which parameters are amounts, counted in ten-thousandths.
    std::vector<bool> currencyParameters;
    /// Table of the statement, the first one of a join.
    std::string table;
    /// A plain SELECT of one table: its rows can be changed, and the row's number stands in the
    /// result behind the last column.
    bool takesEdits = false;
};

/// Raises StoreError on a malformed statement and on unknown tables, fields and functions.
Translation Translate(const StatementTokens& statement, const Schema& schema);

} // namespace lorvo
