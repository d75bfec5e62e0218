#include "store/statement_tokens.h"

#include "platform/values/errors.h"

#include <algorithm>

namespace lorvo {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Letters of other alphabets than ASCII are bytes above 127 in UTF-8.
bool IsNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) > 127;
}

char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

class Tokenizer {
  public:
    explicit Tokenizer(std::string_view statement) : rest_(statement) {}

    StatementTokens Run() {
        for (;;) {
            while (!rest_.empty() && IsBlank(rest_.front()))
                rest_.remove_prefix(1);
            if (rest_.empty())
                break;
            ReadToken();
        }
        result_.tokens.push_back({Token::Kind::End, {}});
        return std::move(result_);
    }

  private:
    void ReadToken() {
        const char first = rest_.front();
        if (first == '\'' || first == '"')
            ReadText(first);
        else if (first == '[')
            ReadBracketName();
        else if (IsDigit(first))
            ReadNumber();
        else if (IsNameStart(first))
            Add(Token::Kind::Word, Take(WordLength()));
        else
            ReadSymbol();
    }

    void ReadText(char quote) {
        std::string content;
        for (std::size_t i = 1; i < rest_.size(); ++i) {
            if (rest_[i] != quote) {
                content += rest_[i];
            } else if (i + 1 < rest_.size() && rest_[i + 1] == quote) {
                content += rest_[i++];
            } else {
                rest_.remove_prefix(i + 1);
                Add(Token::Kind::Text, std::move(content));
                return;
            }
        }
        throw StoreError("Chyba v příkazu: text v uvozovkách nemá konec.");
    }

    void ReadBracketName() {
        const std::size_t end = rest_.find(']');
        if (end == std::string_view::npos || end == 1)
            throw StoreError("Chyba v příkazu: název v závorkách [ ] není úplný.");
        const std::string inBrackets = Take(end + 1);
        Add(Token::Kind::Name, inBrackets.substr(1, end - 1));
    }

    void ReadNumber() {
        std::size_t length = DigitsFrom(0);
        if (length + 1 < rest_.size() && rest_[length] == '.' && IsDigit(rest_[length + 1]))
            length = DigitsFrom(length + 1);
        if (length < rest_.size() && IsNameStart(rest_[length]))
            throw StoreError("Chyba v příkazu: číslo " + Take(length) + " má za sebou písmeno.");
        Add(Token::Kind::Number, Take(length));
    }

    void ReadSymbol() {
        const std::string_view two = rest_.substr(0, 2);
        const char first = rest_.front();
        if (two == "<>" || two == "<=" || two == ">=")
            Add(Token::Kind::Symbol, Take(2));
        else if (first == '?')
            Add(Token::Kind::Parameter, Take(1));
        else if (first == '!') // the bang between table and field
            Take(1), Add(Token::Kind::Symbol, ".");
        else if (std::string_view("(),.*+-=<>;").find(first) != std::string_view::npos)
            Add(Token::Kind::Symbol, Take(1));
        else
            throw StoreError("Chyba v příkazu: nečekaný znak.");
    }

    void Add(Token::Kind kind, std::string text) {
        Token token{kind, std::move(text)};
        const bool isBound = kind == Token::Kind::Number || kind == Token::Kind::Text ||
                             kind == Token::Kind::Parameter;
        if (isBound)
            token.parameter = result_.parameters++;
        AppendToShape(token);
        result_.tokens.push_back(std::move(token));
    }

    /// A literal leaves only its kind. A name in brackets keeps them, so that it differs from the
    /// keyword of the same letters.
    void AppendToShape(const Token& token) {
        std::string& shape = result_.shape;
        switch (token.kind) {
        case Token::Kind::Number:
            shape += "#";
            break;
        case Token::Kind::Text:
            shape += "'";
            break;
        case Token::Kind::Name:
            shape += '[' + token.text + ']';
            break;
        default:
            shape += token.text;
        }
        shape += ' ';
    }

    std::string Take(std::size_t length) {
        std::string taken(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return taken;
    }

    std::size_t DigitsFrom(std::size_t start) const {
        while (start < rest_.size() && IsDigit(rest_[start]))
            ++start;
        return start;
    }

    std::size_t WordLength() const {
        std::size_t length = 1;
        while (length < rest_.size() && (IsNameStart(rest_[length]) || IsDigit(rest_[length])))
            ++length;
        return length;
    }

    std::string_view rest_;
    StatementTokens result_;
};

} // namespace

bool Token::IsKeyword(std::string_view keyword) const {
    return kind == Kind::Word &&
           std::equal(text.begin(), text.end(), keyword.begin(), keyword.end(),
                      [](char written, char capital) { return Upper(written) == capital; });
}

StatementTokens Tokenize(std::string_view statement) {
    return Tokenizer(statement).Run();
}

} // namespace lorvo
