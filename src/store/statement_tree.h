#pragma once
// A parsed statement, before its names are looked up in the schema.

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lorvo {

struct SelectStatement;

struct Expression {
    enum class Kind {
        Column,    ///< name, perhaps with its table
        Literal,   ///< number, bound by `parameter`
        Text,      ///< text in quotes, bound by `parameter`
        Parameter, ///< question mark, bound by `parameter`
        True,
        False,
        Null,
        Call,   ///< function `name`; no operand stands for the star
        Negate, ///< minus before one operand
        Not,
        Compare,    ///< two operands, `name` is the operator
        IsNull,     ///< one operand
        InList,     ///< the first operand in the others
        InSelect,   ///< the operand in the rows of `select`
        Subquery,   ///< the one value of `select`
        Arithmetic, ///< operands joined by `signs`, each + or -
        All,        ///< operands joined by AND
        Any         ///< operands joined by OR
    };
    Kind kind = Kind::Null;
    std::string table;
    std::string name;
    std::string signs;
    int parameter = -1;
    std::vector<Expression> operands;
    std::shared_ptr<SelectStatement> select;
};

struct SelectItem {
    bool isStar = false; ///< all fields of `table`, or of every table when that is empty
    std::string table;
    Expression value;
    std::string alias;
};

struct TableReference {
    std::string table;
    std::string alias; ///< the table's own name when none is given
};

struct OrderTerm {
    Expression value;
    bool descending = false;
};

struct SelectStatement {
    bool distinct = false;
    int topParameter = -1; ///< literal that holds n of TOP n
    std::vector<SelectItem> items;
    std::vector<TableReference> from;
    std::optional<Expression> where;
    std::vector<OrderTerm> orderBy;
};

struct DeleteStatement {
    TableReference from;
    std::optional<Expression> where;
};

/// Exactly one of the two.
struct Statement {
    std::optional<SelectStatement> select;
    std::optional<DeleteStatement> deletion;
};

} // namespace lorvo
