#include "office/texts/post_code.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kDigits = 5;

} // namespace

QString CleanedPostCode(QString text) {
    text.remove(u' ');
    return text.isEmpty() ? u"0"_s : text;
}

std::optional<int> PostCodeFromText(const QString& text) {
    const QString cleaned = CleanedPostCode(text);
    const bool digits =
        std::ranges::all_of(cleaned, [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (cleaned != u"0" && (cleaned.size() != kDigits || !digits))
        return std::nullopt;
    return cleaned.toInt();
}

} // namespace lorvo
