#pragma once
// The expressions of the store's habitual dialect.

#include "store/statement_tree.h"
#include "store/token_reader.h"

#include <functional>

namespace lorvo {

/// Reads expressions off a statement's words. StoreError where the words make none.
class ExpressionParser {
  public:
    /// `parseSelect` reads a SELECT that stands in brackets. The reader outlives the parser.
    ExpressionParser(TokenReader& reader, std::function<SelectStatement()> parseSelect)
        : reader_(reader), parseSelect_(std::move(parseSelect)) {}

    /// Operands of OR, each of them operands of AND.
    Expression ParseAny();

  private:
    using Operand = Expression (ExpressionParser::*)();

    Expression ParseEach();
    /// One operand stays itself; more become one flat node, so that a long chain isn't a deep one.
    Expression ParseJoined(Expression::Kind kind, std::string_view keyword, Operand parseOperand);
    /// NOT takes the whole comparison behind it: NOT PohlaviPes = true.
    Expression ParseNot();
    Expression ParseComparison();
    Expression ParseIsNull(Expression left);
    Expression ParseIn(Expression left);
    Expression ParseArithmetic();
    Expression ParseSigned();
    Expression ParsePrimary();
    Expression ParseBracket();
    Expression ParseWord();
    Expression ParseCall();

    TokenReader& reader_;
    std::function<SelectStatement()> parseSelect_;
};

} // namespace lorvo
