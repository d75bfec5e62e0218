#pragma once
// Wildcard patterns as office programs know them. Standard library alone.

#include <string>
#include <string_view>
#include <vector>

namespace lorvo {

/// A compiled pattern: "?" is any one character, "*" any run of them, "#" one digit, "[abc]" one of
/// a list, "[!abc]" one that is not in it. A list may hold ranges ("[a-z]", by character code, so
/// that "č" lies outside); a hyphen at either end of a list is a hyphen; "[]" stands for nothing.
/// Matching tells letter cases apart.
class WildcardPattern {
  public:
    /// Raises Error on a list that is never closed or a range that runs backwards.
    explicit WildcardPattern(std::u16string_view pattern);

    /// Whether the whole text fits the pattern. At most text times pattern steps, whatever the
    /// number of stars.
    bool Matches(std::u16string_view text) const;

  private:
    struct Range {
        char16_t from;
        char16_t to;
    };
    struct Element {
        enum class Kind { Literal, AnyOne, AnyRun, Digit, List } kind;
        char16_t literal = 0;
        bool negated = false;
        std::vector<Range> ranges;

        bool Fits(char16_t character) const;
    };

    /// Reads the list whose "[" stands before `position`; returns the position behind its "]".
    std::size_t ParseList(std::u16string_view pattern, std::size_t position);

    std::vector<Element> elements_;
};

} // namespace lorvo
