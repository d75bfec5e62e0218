#include "store/statement_parser.h"

#include "store/expression_parser.h"

namespace lorvo {

namespace {

class Parser {
  public:
    explicit Parser(const std::vector<Token>& tokens)
        : reader_(tokens), expressions_(reader_, [this] { return ParseSelect(); }) {}

    Statement ParseAll() {
        Statement statement;
        if (reader_.AcceptKeyword("DELETE"))
            statement.deletion = ParseDelete();
        else
            statement.select = ParseSelect();
        reader_.Accept(";");
        if (reader_.Peek().kind != Token::Kind::End)
            reader_.Fail();
        return statement;
    }

  private:
    DeleteStatement ParseDelete() {
        reader_.Accept("*");
        reader_.ExpectKeyword("FROM");
        DeleteStatement deletion;
        deletion.from = ParseTable();
        if (reader_.AcceptKeyword("WHERE"))
            deletion.where = expressions_.ParseAny();
        return deletion;
    }

    SelectStatement ParseSelect() {
        const TokenReader::Nesting nesting(reader_);
        reader_.ExpectKeyword("SELECT");
        SelectStatement select;
        select.distinct = reader_.AcceptKeyword("DISTINCT");
        if (reader_.AcceptKeyword("TOP"))
            select.topParameter = ParseTopNumber();
        do
            select.items.push_back(ParseItem());
        while (reader_.Accept(","));
        reader_.ExpectKeyword("FROM");
        do
            select.from.push_back(ParseTable());
        while (reader_.Accept(","));
        if (reader_.AcceptKeyword("WHERE"))
            select.where = expressions_.ParseAny();
        ParseOrderBy(select);
        return select;
    }

    void ParseOrderBy(SelectStatement& select) {
        if (!reader_.AcceptKeyword("ORDER"))
            return;
        reader_.ExpectKeyword("BY");
        do {
            OrderTerm term{expressions_.ParseAny()};
            term.descending = reader_.AcceptKeyword("DESC");
            if (!term.descending)
                reader_.AcceptKeyword("ASC");
            select.orderBy.push_back(std::move(term));
        } while (reader_.Accept(","));
    }

    int ParseTopNumber() {
        const Token& number = reader_.Peek();
        if (number.kind != Token::Kind::Number || number.text.find('.') != std::string::npos)
            reader_.Fail();
        reader_.Skip(1);
        return number.parameter;
    }

    SelectItem ParseItem() {
        SelectItem item;
        if (reader_.Accept("*")) {
            item.isStar = true;
        } else if (reader_.Peek(1).Is(".") && reader_.Peek(2).Is("*")) {
            item.isStar = true;
            item.table = reader_.TakeName();
            reader_.Skip(2);
        } else {
            item.value = expressions_.ParseAny();
            if (reader_.AcceptKeyword("AS"))
                item.alias = reader_.TakeName();
        }
        return item;
    }

    TableReference ParseTable() {
        TableReference reference;
        reference.table = reference.alias = reader_.TakeName();
        if (reader_.AcceptKeyword("AS") || reader_.IsAtName())
            reference.alias = reader_.TakeName();
        return reference;
    }

    TokenReader reader_;
    ExpressionParser expressions_;
};

} // namespace

Statement ParseStatement(const std::vector<Token>& tokens) {
    return Parser(tokens).ParseAll();
}

} // namespace lorvo
