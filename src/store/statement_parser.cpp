#include "store/statement_parser.h"

#include "platform/values/errors.h"

#include <algorithm>
#include <array>

namespace lorvo {

namespace {

/// Far more than a statement ever nests, far less than the stack holds.
constexpr int kDeepestNesting = 100;

constexpr std::array kKeywords = {"SELECT", "DISTINCT", "TOP",  "FROM",  "WHERE", "ORDER", "BY",
                                  "ASC",    "DESC",     "AS",   "AND",   "OR",    "NOT",   "IN",
                                  "IS",     "NULL",     "TRUE", "FALSE", "DELETE"};

class Parser {
  public:
    explicit Parser(const std::vector<Token>& tokens) : tokens_(tokens) {}

    Statement ParseAll() {
        Statement statement;
        if (AcceptKeyword("DELETE"))
            statement.deletion = ParseDelete();
        else
            statement.select = ParseSelect();
        Accept(";");
        if (Peek().kind != Token::Kind::End)
            Fail();
        return statement;
    }

  private:
    DeleteStatement ParseDelete() {
        Accept("*");
        ExpectKeyword("FROM");
        DeleteStatement deletion;
        deletion.from = ParseTable();
        if (AcceptKeyword("WHERE"))
            deletion.where = ParseAny();
        return deletion;
    }

    SelectStatement ParseSelect() {
        const Nesting nesting(*this);
        ExpectKeyword("SELECT");
        SelectStatement select;
        select.distinct = AcceptKeyword("DISTINCT");
        if (AcceptKeyword("TOP"))
            select.topParameter = ParseTopNumber();
        do
            select.items.push_back(ParseItem());
        while (Accept(","));
        ExpectKeyword("FROM");
        do
            select.from.push_back(ParseTable());
        while (Accept(","));
        if (AcceptKeyword("WHERE"))
            select.where = ParseAny();
        ParseOrderBy(select);
        return select;
    }

    void ParseOrderBy(SelectStatement& select) {
        if (!AcceptKeyword("ORDER"))
            return;
        ExpectKeyword("BY");
        do {
            OrderTerm term{ParseAny()};
            term.descending = AcceptKeyword("DESC");
            if (!term.descending)
                AcceptKeyword("ASC");
            select.orderBy.push_back(std::move(term));
        } while (Accept(","));
    }

    int ParseTopNumber() {
        const Token& number = Peek();
        if (number.kind != Token::Kind::Number || number.text.find('.') != std::string::npos)
            Fail();
        ++position_;
        return number.parameter;
    }

    SelectItem ParseItem() {
        SelectItem item;
        if (Accept("*")) {
            item.isStar = true;
        } else if (Peek(1).Is(".") && Peek(2).Is("*")) {
            item.isStar = true;
            item.table = TakeName();
            position_ += 2;
        } else {
            item.value = ParseAny();
            if (AcceptKeyword("AS"))
                item.alias = TakeName();
        }
        return item;
    }

    TableReference ParseTable() {
        TableReference reference;
        reference.table = reference.alias = TakeName();
        if (AcceptKeyword("AS") || IsName(Peek()))
            reference.alias = TakeName();
        return reference;
    }

    Expression ParseAny() {
        const Nesting nesting(*this);
        return ParseJoined(Expression::Kind::Any, "OR", &Parser::ParseEach);
    }

    Expression ParseEach() { return ParseJoined(Expression::Kind::All, "AND", &Parser::ParseNot); }

    /// One operand stays itself; more become one flat node, so that a long chain isn't a deep one.
    Expression ParseJoined(Expression::Kind kind, std::string_view keyword,
                           Expression (Parser::*parseOperand)()) {
        Expression first = (this->*parseOperand)();
        if (!Peek().IsKeyword(keyword))
            return first;
        Expression chain;
        chain.kind = kind;
        chain.operands.push_back(std::move(first));
        while (AcceptKeyword(keyword))
            chain.operands.push_back((this->*parseOperand)());
        return chain;
    }

    /// NOT takes the whole comparison behind it: NOT PohlaviPes = true.
    Expression ParseNot() {
        if (!AcceptKeyword("NOT"))
            return ParseComparison();
        const Nesting nesting(*this);
        return Unary(Expression::Kind::Not, ParseNot());
    }

    Expression ParseComparison() {
        Expression left = ParseArithmetic();
        static constexpr std::array kOperators = {"=", "<>", "<", ">", "<=", ">="};
        for (const char* symbol : kOperators)
            if (Accept(symbol)) {
                Expression compare = Unary(Expression::Kind::Compare, std::move(left));
                compare.name = symbol;
                compare.operands.push_back(ParseArithmetic());
                return compare;
            }
        if (AcceptKeyword("IS"))
            return ParseIsNull(std::move(left));
        if (Peek().IsKeyword("NOT") && Peek(1).IsKeyword("IN")) {
            position_ += 2;
            return Unary(Expression::Kind::Not, ParseIn(std::move(left)));
        }
        return AcceptKeyword("IN") ? ParseIn(std::move(left)) : left;
    }

    Expression ParseIsNull(Expression left) {
        const bool negated = AcceptKeyword("NOT");
        ExpectKeyword("NULL");
        Expression isNull = Unary(Expression::Kind::IsNull, std::move(left));
        return negated ? Unary(Expression::Kind::Not, std::move(isNull)) : isNull;
    }

    Expression ParseIn(Expression left) {
        Expression in = Unary(Expression::Kind::InList, std::move(left));
        Expect("(");
        if (Peek().IsKeyword("SELECT")) {
            in.kind = Expression::Kind::InSelect;
            in.select = std::make_shared<SelectStatement>(ParseSelect());
        } else {
            do
                in.operands.push_back(ParseArithmetic());
            while (Accept(","));
        }
        Expect(")");
        return in;
    }

    Expression ParseArithmetic() {
        Expression first = ParseSigned();
        if (!Peek().Is("+") && !Peek().Is("-"))
            return first;
        Expression chain = Unary(Expression::Kind::Arithmetic, std::move(first));
        chain.signs = "+";
        while (Peek().Is("+") || Peek().Is("-")) {
            chain.signs += Take().text;
            chain.operands.push_back(ParseSigned());
        }
        return chain;
    }

    Expression ParseSigned() {
        if (!Accept("-"))
            return ParsePrimary();
        const Nesting nesting(*this);
        return Unary(Expression::Kind::Negate, ParseSigned());
    }

    Expression ParsePrimary() {
        if (Accept("("))
            return ParseBracket();
        switch (Peek().kind) {
        case Token::Kind::Number:
            return Bound(Expression::Kind::Literal);
        case Token::Kind::Text:
            return Bound(Expression::Kind::Text);
        case Token::Kind::Parameter:
            return Bound(Expression::Kind::Parameter);
        default:
            return ParseWord();
        }
    }

    Expression ParseBracket() {
        Expression inner;
        if (Peek().IsKeyword("SELECT")) {
            inner.kind = Expression::Kind::Subquery;
            inner.select = std::make_shared<SelectStatement>(ParseSelect());
        } else {
            inner = ParseAny();
        }
        Expect(")");
        return inner;
    }

    Expression ParseWord() {
        Expression word;
        if (AcceptKeyword("TRUE")) {
            word.kind = Expression::Kind::True;
        } else if (AcceptKeyword("FALSE")) {
            word.kind = Expression::Kind::False;
        } else if (AcceptKeyword("NULL")) {
            word.kind = Expression::Kind::Null;
        } else if (Peek(1).Is("(")) {
            return ParseCall();
        } else {
            word.kind = Expression::Kind::Column;
            word.name = TakeName();
            if (Accept(".")) {
                word.table = std::move(word.name);
                word.name = TakeName();
            }
        }
        return word;
    }

    Expression ParseCall() {
        Expression call;
        call.kind = Expression::Kind::Call;
        call.name = TakeName();
        Expect("(");
        if (!Accept("*"))
            call.operands.push_back(ParseAny());
        Expect(")");
        return call;
    }

    Expression Bound(Expression::Kind kind) {
        Expression bound;
        bound.kind = kind;
        bound.parameter = Take().parameter;
        return bound;
    }

    static Expression Unary(Expression::Kind kind, Expression operand) {
        Expression result;
        result.kind = kind;
        result.operands.push_back(std::move(operand));
        return result;
    }

    static bool IsName(const Token& token) {
        return token.kind == Token::Kind::Name ||
               (token.kind == Token::Kind::Word &&
                std::none_of(kKeywords.begin(), kKeywords.end(),
                             [&](const char* keyword) { return token.IsKeyword(keyword); }));
    }

    std::string TakeName() {
        if (!IsName(Peek()))
            Fail();
        return Take().text;
    }

    const Token& Peek(std::size_t ahead = 0) const {
        return tokens_[std::min(position_ + ahead, tokens_.size() - 1)];
    }
    const Token& Take() { return tokens_[position_++]; }

    bool Accept(std::string_view symbol) {
        const bool accepted = Peek().Is(symbol);
        position_ += accepted ? 1 : 0;
        return accepted;
    }
    bool AcceptKeyword(std::string_view keyword) {
        const bool accepted = Peek().IsKeyword(keyword);
        position_ += accepted ? 1 : 0;
        return accepted;
    }
    void Expect(std::string_view symbol) {
        if (!Accept(symbol))
            Fail();
    }
    void ExpectKeyword(std::string_view keyword) {
        if (!AcceptKeyword(keyword))
            Fail();
    }

    [[noreturn]] void Fail() const {
        if (Peek().kind == Token::Kind::End)
            throw StoreError("Chyba v příkazu: příkaz není úplný.");
        throw StoreError("Chyba v příkazu u slova \"" + Peek().text + "\".");
    }

    class Nesting {
      public:
        explicit Nesting(Parser& parser) : parser_(parser) {
            if (++parser_.nesting_ > kDeepestNesting)
                throw StoreError("Chyba v příkazu: příliš mnoho vnořených závorek.");
        }
        ~Nesting() { --parser_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

      private:
        Parser& parser_;
    };

    const std::vector<Token>& tokens_;
    std::size_t position_ = 0;
    int nesting_ = 0;
};

} // namespace

Statement ParseStatement(const std::vector<Token>& tokens) {
    return Parser(tokens).ParseAll();
}

} // namespace lorvo
