#pragma once
// Expressions of the dialect, written as SQLite understands them. A part of the translator.

#include "store/schema.h"
#include "store/statement_tree.h"

#include <functional>
#include <string>
#include <vector>

namespace lorvo {

/// A table that a SELECT or DELETE reads.
struct Source {
    const Table* table;
    std::string alias;   ///< its name in the statement
    std::string written; ///< its name in the translation
};

/// What names mean inside of one SELECT; a sub-select sees the outer ones too.
struct Scope {
    const Scope* outer = nullptr;
    std::vector<Source> sources;
};

struct WrittenExpression {
    std::string sql;
    FieldType type = FieldType::Unknown;
    /// The outcome of a comparison and the like, as opposed to a stored boolean.
    bool isCondition = false;
    bool isAggregate = false;
    std::string table; ///< of a plain column, as the statement names it, and its field
    std::string field;
};

class ExpressionWriter {
  public:
    using SubselectWriter = std::function<WrittenExpression(const SelectStatement&, const Scope&)>;

    /// `currencyParameters` receives a mark for each literal that is written as an amount.
    ExpressionWriter(const Scope& scope, std::vector<bool>& currencyParameters,
                     SubselectWriter writeSubselect)
        : scope_(scope), currencyParameters_(currencyParameters),
          writeSubselect_(std::move(writeSubselect)) {}

    /// All raise StoreError where a name is unknown or ambiguous or the types make no sense.
    WrittenExpression Write(const Expression& expression) const;
    /// As a condition: a boolean field counts as true when it is neither 0 nor Null.
    std::string WriteCondition(const Expression& expression) const;
    /// As a term of an order: texts by the Czech alphabet, true before false.
    static std::string OrderKey(const WrittenExpression& written);
    static WrittenExpression WriteColumn(const Source& source, const TableField& field);

  private:
    WrittenExpression WriteName(const Expression& column) const;
    WrittenExpression WriteCall(const Expression& call) const;
    WrittenExpression WriteNegated(const Expression& negate) const;
    WrittenExpression WriteCompare(const Expression& compare) const;
    WrittenExpression WriteInList(const Expression& in) const;
    WrittenExpression WriteInSelect(const Expression& in) const;
    WrittenExpression WriteArithmetic(const Expression& chain) const;
    WrittenExpression WriteJoinedConditions(const Expression& chain, const char* keyword) const;
    std::string AsAmount(const Expression& expression, const WrittenExpression& written) const;

    const Scope& scope_;
    std::vector<bool>& currencyParameters_;
    SubselectWriter writeSubselect_;
};

/// A name in double quotes.
std::string QuotedName(const std::string& name);

} // namespace lorvo
