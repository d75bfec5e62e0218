#pragma once
// A statement's words, read one after the other.

#include "store/statement_tokens.h"

#include <string>
#include <string_view>
#include <vector>

namespace lorvo {

/// What a parser of the dialect reads from. All that takes a word moves behind it.
class TokenReader {
  public:
    /// The tokens outlive the reader; the last one is the end.
    explicit TokenReader(const std::vector<Token>& tokens) : tokens_(tokens) {}

    const Token& Peek(std::size_t ahead = 0) const;
    const Token& Take() { return tokens_[position_++]; }
    void Skip(std::size_t tokens) { position_ += tokens; }

    /// Takes the next token if it is that one; whether it was.
    bool Accept(std::string_view symbol);
    bool AcceptKeyword(std::string_view keyword);
    // The same; a StoreError where it isn't.
    void Expect(std::string_view symbol);
    void ExpectKeyword(std::string_view keyword);
    /// The name that comes next. StoreError where none does.
    std::string TakeName();
    /// Whether the next token can be a name; a keyword can't.
    bool IsAtName() const;

    /// Raises the StoreError that names the next word.
    [[noreturn]] void Fail() const;

    /// One level of nesting for the lifetime of the object; StoreError beyond any use.
    class Nesting {
      public:
        explicit Nesting(TokenReader& reader);
        ~Nesting() { --reader_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

      private:
        TokenReader& reader_;
    };

  private:
    const std::vector<Token>& tokens_;
    std::size_t position_ = 0;
    int nesting_ = 0;
};

} // namespace lorvo
