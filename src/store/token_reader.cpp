#include "store/token_reader.h"

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

} // namespace

const Token& TokenReader::Peek(std::size_t ahead) const {
    return tokens_[std::min(position_ + ahead, tokens_.size() - 1)];
}

bool TokenReader::Accept(std::string_view symbol) {
    const bool accepted = Peek().Is(symbol);
    position_ += accepted ? 1 : 0;
    return accepted;
}

bool TokenReader::AcceptKeyword(std::string_view keyword) {
    const bool accepted = Peek().IsKeyword(keyword);
    position_ += accepted ? 1 : 0;
    return accepted;
}

void TokenReader::Expect(std::string_view symbol) {
    if (!Accept(symbol))
        Fail();
}

void TokenReader::ExpectKeyword(std::string_view keyword) {
    if (!AcceptKeyword(keyword))
        Fail();
}

bool TokenReader::IsAtName() const {
    const Token& token = Peek();
    return token.kind == Token::Kind::Name ||
           (token.kind == Token::Kind::Word &&
            std::none_of(kKeywords.begin(), kKeywords.end(),
                         [&](const char* keyword) { return token.IsKeyword(keyword); }));
}

std::string TokenReader::TakeName() {
    if (!IsAtName())
        Fail();
    return Take().text;
}

void TokenReader::Fail() const {
    if (Peek().kind == Token::Kind::End)
        throw StoreError("Chyba v příkazu: příkaz není úplný.");
    throw StoreError("Chyba v příkazu u slova \"" + Peek().text + "\".");
}

TokenReader::Nesting::Nesting(TokenReader& reader) : reader_(reader) {
    if (++reader_.nesting_ > kDeepestNesting)
        throw StoreError("Chyba v příkazu: příliš mnoho vnořených závorek.");
}

} // namespace lorvo
