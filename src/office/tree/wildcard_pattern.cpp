#include "office/tree/wildcard_pattern.h"

#include "platform/values/errors.h"

#include <algorithm>

namespace lorvo {

WildcardPattern::WildcardPattern(std::u16string_view pattern) {
    for (std::size_t i = 0; i < pattern.size();) {
        const char16_t character = pattern[i++];
        switch (character) {
        case u'?':
            elements_.push_back({Element::Kind::AnyOne, 0, false, {}});
            break;
        case u'*':
            elements_.push_back({Element::Kind::AnyRun, 0, false, {}});
            break;
        case u'#':
            elements_.push_back({Element::Kind::Digit, 0, false, {}});
            break;
        case u'[':
            i = ParseList(pattern, i);
            break;
        default:
            elements_.push_back({Element::Kind::Literal, character, false, {}});
        }
    }
}

std::size_t WildcardPattern::ParseList(std::u16string_view pattern, std::size_t position) {
    const std::size_t end = pattern.find(u']', position);
    if (end == std::u16string_view::npos)
        throw Error("Neplatný vzor hledání: k závorce „[“ chybí „]“.");
    std::u16string_view list = pattern.substr(position, end - position);
    if (list.empty())
        return end + 1;

    Element element{Element::Kind::List, 0, false, {}};
    if (list.size() > 1 && list.front() == u'!') {
        element.negated = true;
        list.remove_prefix(1);
    }
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool isRange = i + 2 < list.size() && list[i + 1] == u'-';
        const Range range{list[i], isRange ? list[i + 2] : list[i]};
        if (range.to < range.from)
            throw Error("Neplatný vzor hledání: rozsah v závorkách jde pozpátku.");
        element.ranges.push_back(range);
        if (isRange)
            i += 2;
    }
    elements_.push_back(std::move(element));
    return end + 1;
}

bool WildcardPattern::Element::Fits(char16_t character) const {
    switch (kind) {
    case Kind::Literal:
        return character == literal;
    case Kind::Digit:
        return character >= u'0' && character <= u'9';
    case Kind::List:
        return negated !=
               std::any_of(ranges.begin(), ranges.end(), [character](const Range& range) {
                   return range.from <= character && character <= range.to;
               });
    case Kind::AnyOne:
    case Kind::AnyRun:
        return true;
    }
    return false;
}

bool WildcardPattern::Matches(std::u16string_view text) const {
    std::size_t element = 0;
    std::size_t position = 0;
    // Where to take up again when the present attempt fails: the last star, swallowing one more.
    std::size_t star = elements_.size();
    std::size_t swallowed = 0;
    while (position < text.size()) {
        if (element < elements_.size() && elements_[element].kind == Element::Kind::AnyRun) {
            star = element++;
            swallowed = position;
        } else if (element < elements_.size() && elements_[element].Fits(text[position])) {
            ++element;
            ++position;
        } else if (star < elements_.size()) {
            element = star + 1;
            position = ++swallowed;
        } else {
            return false;
        }
    }
    return std::all_of(elements_.begin() + static_cast<std::ptrdiff_t>(element), elements_.end(),
                       [](const Element& rest) { return rest.kind == Element::Kind::AnyRun; });
}

} // namespace lorvo
