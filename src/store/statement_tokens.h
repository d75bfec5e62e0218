#pragma once
// The words of a statement. Everything that later stages do starts from these, so that a text in
// quotes can never be taken for a part of the statement.

#include <string>
#include <string_view>
#include <vector>

namespace lorvo {

struct Token {
    enum class Kind {
        Word,      ///< keyword or name, as written
        Name,      ///< name in brackets, never a keyword
        Number,    ///< digits, perhaps with decimals
        Text,      ///< content of a text in quotes, inner quotes single again
        Parameter, ///< a question mark
        Symbol,    ///< one of ( ) , . * + - = <> < > <= >=
        End
    };
    Kind kind = Kind::End;
    std::string text;
    int parameter = -1; ///< running number among literals and question marks, which are bound

    bool Is(std::string_view symbol) const { return kind == Kind::Symbol && text == symbol; }
    /// Whether it is this keyword, given in capitals.
    bool IsKeyword(std::string_view keyword) const;
};

struct StatementTokens {
    std::vector<Token> tokens; ///< the last one is End
    int parameters = 0;        ///< how many literals and question marks there are
    /// The statement without its literals' values: statements of one shape share a translation.
    std::string shape;
};

/// Raises StoreError on a text or a bracket without an end and on a character that no statement
/// has.
StatementTokens Tokenize(std::string_view statement);

} // namespace lorvo
