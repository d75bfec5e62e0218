#include "office/tree/wildcard_pattern.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>
#include <random>

namespace lorvo {
namespace {

struct Case {
    const char16_t* pattern;
    const char16_t* text;
    bool fits;
};

constexpr Case kCases[] = {
    {u"", u"", true},         {u"", u"a", false},           {u"rex", u"rex", true},
    {u"rex", u"Rex", false},  {u"*ex*", u"rexík", true},    {u"*", u"", true},
    {u"**a**", u"bab", true}, {u"*a*b*c", u"xaybzc", true}, {u"*a*b*c", u"xaybzcd", false},
    {u"r?x", u"rex", true},   {u"r?x", u"rx", false},       {u"?", u"ř", true},
    {u"##", u"12", true},     {u"##", u"1a", false},        {u"#", u"٣", false},
    {u"[abc]", u"b", true},   {u"[abc]", u"d", false},      {u"[!abc]", u"d", true},
    {u"[!abc]", u"", false},  {u"[a-c]x", u"bx", true},     {u"[a-c]x", u"čx", false},
    {u"[áčř]", u"č", true},   {u"[č-ř]", u"ň", true},       {u"[!á-ž]", u"a", true},
    {u"[a-]", u"-", true},    {u"[-a]", u"-", true},        {u"[a-c-e]", u"-", true},
    {u"[!]", u"!", true},     {u"[]", u"", true},           {u"a[]b", u"ab", true},
    {u"[?]", u"?", true},     {u"[?]", u"x", false},        {u"[*]#[#]", u"*5#", true},
    {u"[[]", u"[", true},     {u"]", u"]", true},
};

TEST(WildcardPattern, FitsTheTableOfCases) {
    for (const Case& c : kCases)
        EXPECT_EQ(WildcardPattern(c.pattern).Matches(c.text), c.fits)
            << std::string(c.pattern, c.pattern + std::char_traits<char16_t>::length(c.pattern));
}

TEST(WildcardPattern, RefusesWhatIsMalformed) {
    for (const char16_t* pattern : {u"[", u"*[*", u"[abc", u"a[!", u"[z-a]", u"[ž-a]"})
        EXPECT_THROW(WildcardPattern{pattern}, Error);
}

// The plain definition, by recursion: slow, but nothing in it can be wrong in the same way.
bool FitsByDefinition(std::u16string_view pattern, std::u16string_view text) {
    if (pattern.empty())
        return text.empty();
    if (pattern.front() == u'*')
        return FitsByDefinition(pattern.substr(1), text) ||
               (!text.empty() && FitsByDefinition(pattern, text.substr(1)));
    if (text.empty())
        return false;
    const bool fits = pattern.front() == u'?' || pattern.front() == text.front();
    return fits && FitsByDefinition(pattern.substr(1), text.substr(1));
}

TEST(WildcardPattern, AgreesWithTheDefinitionOnRandomTexts) {
    std::mt19937 random(7);
    const auto pick = [&random](std::u16string_view from, std::size_t most) {
        std::u16string text(random() % (most + 1), u' ');
        for (char16_t& character : text)
            character = from[random() % from.size()];
        return text;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::u16string pattern = pick(u"ab*?", 8);
        const std::u16string text = pick(u"ab", 10);
        ASSERT_EQ(WildcardPattern(pattern).Matches(text), FitsByDefinition(pattern, text)) << i;
    }
}

TEST(WildcardPattern, AnyTextIsAPatternOrAnError) {
    std::mt19937 random(11);
    constexpr std::u16string_view kCharacters = u"[]!-*?#ač\xd800\xffff ";
    for (int i = 0; i < 20000; ++i) {
        std::u16string pattern(random() % 12, u' ');
        for (char16_t& character : pattern)
            character = kCharacters[random() % kCharacters.size()];
        try {
            WildcardPattern(pattern).Matches(pattern);
        } catch (const Error&) {
            EXPECT_NE(pattern.find(u'['), std::u16string::npos);
        }
    }
}

TEST(WildcardPattern, ManyStarsStayCheap) {
    std::u16string pattern;
    for (int i = 0; i < 200; ++i)
        pattern += u"*a";
    EXPECT_FALSE(WildcardPattern(pattern + u"*b").Matches(std::u16string(5000, u'a')));
}

} // namespace
} // namespace lorvo
