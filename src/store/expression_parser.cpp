#include "store/expression_parser.h"

#include <array>

namespace lorvo {

namespace {

Expression Bound(Expression::Kind kind, const Token& token) {
    Expression bound;
    bound.kind = kind;
    bound.parameter = token.parameter;
    return bound;
}

Expression Unary(Expression::Kind kind, Expression operand) {
    Expression result;
    result.kind = kind;
    result.operands.push_back(std::move(operand));
    return result;
}

} // namespace

Expression ExpressionParser::ParseAny() {
    const TokenReader::Nesting nesting(reader_);
    return ParseJoined(Expression::Kind::Any, "OR", &ExpressionParser::ParseEach);
}

Expression ExpressionParser::ParseEach() {
    return ParseJoined(Expression::Kind::All, "AND", &ExpressionParser::ParseNot);
}

Expression ExpressionParser::ParseJoined(Expression::Kind kind, std::string_view keyword,
                                         Operand parseOperand) {
    Expression first = (this->*parseOperand)();
    if (!reader_.Peek().IsKeyword(keyword))
        return first;
    Expression chain;
    chain.kind = kind;
    chain.operands.push_back(std::move(first));
    while (reader_.AcceptKeyword(keyword))
        chain.operands.push_back((this->*parseOperand)());
    return chain;
}

Expression ExpressionParser::ParseNot() {
    if (!reader_.AcceptKeyword("NOT"))
        return ParseComparison();
    const TokenReader::Nesting nesting(reader_);
    return Unary(Expression::Kind::Not, ParseNot());
}

Expression ExpressionParser::ParseComparison() {
    Expression left = ParseArithmetic();
    static constexpr std::array kOperators = {"=", "<>", "<", ">", "<=", ">="};
    for (const char* symbol : kOperators)
        if (reader_.Accept(symbol)) {
            Expression compare = Unary(Expression::Kind::Compare, std::move(left));
            compare.name = symbol;
            compare.operands.push_back(ParseArithmetic());
            return compare;
        }
    if (reader_.AcceptKeyword("IS"))
        return ParseIsNull(std::move(left));
    if (reader_.Peek().IsKeyword("NOT") && reader_.Peek(1).IsKeyword("IN")) {
        reader_.Skip(2);
        return Unary(Expression::Kind::Not, ParseIn(std::move(left)));
    }
    return reader_.AcceptKeyword("IN") ? ParseIn(std::move(left)) : left;
}

Expression ExpressionParser::ParseIsNull(Expression left) {
    const bool negated = reader_.AcceptKeyword("NOT");
    reader_.ExpectKeyword("NULL");
    Expression isNull = Unary(Expression::Kind::IsNull, std::move(left));
    return negated ? Unary(Expression::Kind::Not, std::move(isNull)) : isNull;
}

Expression ExpressionParser::ParseIn(Expression left) {
    Expression in = Unary(Expression::Kind::InList, std::move(left));
    reader_.Expect("(");
    if (reader_.Peek().IsKeyword("SELECT")) {
        in.kind = Expression::Kind::InSelect;
        in.select = std::make_shared<SelectStatement>(parseSelect_());
    } else {
        do
            in.operands.push_back(ParseArithmetic());
        while (reader_.Accept(","));
    }
    reader_.Expect(")");
    return in;
}

Expression ExpressionParser::ParseArithmetic() {
    Expression first = ParseSigned();
    if (!reader_.Peek().Is("+") && !reader_.Peek().Is("-"))
        return first;
    Expression chain = Unary(Expression::Kind::Arithmetic, std::move(first));
    chain.signs = "+";
    while (reader_.Peek().Is("+") || reader_.Peek().Is("-")) {
        chain.signs += reader_.Take().text;
        chain.operands.push_back(ParseSigned());
    }
    return chain;
}

Expression ExpressionParser::ParseSigned() {
    if (!reader_.Accept("-"))
        return ParsePrimary();
    const TokenReader::Nesting nesting(reader_);
    return Unary(Expression::Kind::Negate, ParseSigned());
}

Expression ExpressionParser::ParsePrimary() {
    if (reader_.Accept("("))
        return ParseBracket();
    switch (reader_.Peek().kind) {
    case Token::Kind::Number:
        return Bound(Expression::Kind::Literal, reader_.Take());
    case Token::Kind::Text:
        return Bound(Expression::Kind::Text, reader_.Take());
    case Token::Kind::Parameter:
        return Bound(Expression::Kind::Parameter, reader_.Take());
    default:
        return ParseWord();
    }
}

Expression ExpressionParser::ParseBracket() {
    Expression inner;
    if (reader_.Peek().IsKeyword("SELECT")) {
        inner.kind = Expression::Kind::Subquery;
        inner.select = std::make_shared<SelectStatement>(parseSelect_());
    } else {
        inner = ParseAny();
    }
    reader_.Expect(")");
    return inner;
}

Expression ExpressionParser::ParseWord() {
    Expression word;
    if (reader_.AcceptKeyword("TRUE")) {
        word.kind = Expression::Kind::True;
    } else if (reader_.AcceptKeyword("FALSE")) {
        word.kind = Expression::Kind::False;
    } else if (reader_.AcceptKeyword("NULL")) {
        word.kind = Expression::Kind::Null;
    } else if (reader_.Peek(1).Is("(")) {
        return ParseCall();
    } else {
        word.kind = Expression::Kind::Column;
        word.name = reader_.TakeName();
        if (reader_.Accept(".")) {
            word.table = std::move(word.name);
            word.name = reader_.TakeName();
        }
    }
    return word;
}

Expression ExpressionParser::ParseCall() {
    Expression call;
    call.kind = Expression::Kind::Call;
    call.name = reader_.TakeName();
    reader_.Expect("(");
    if (!reader_.Accept("*"))
        call.operands.push_back(ParseAny());
    reader_.Expect(")");
    return call;
}

} // namespace lorvo
