#include "store/czech_order.h"

#include "platform/values/errors.h"

#include <array>
#include <memory>
#include <unicode/coll.h>
#include <unicode/unistr.h>

namespace lorvo {

namespace {

const icu::Collator& CzechCollator() {
    static const std::unique_ptr<icu::Collator> collator = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> czech(
            icu::Collator::createInstance(icu::Locale("cs", "CZ"), status));
        if (U_FAILURE(status))
            throw StoreError("Česká abeceda není v systému k dispozici.");
        return czech;
    }();
    return *collator;
}

} // namespace

std::string CzechKey(std::string_view text) {
    const icu::UnicodeString unicode = icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
    return CzechKey(QStringView(unicode.getBuffer(), unicode.length()));
}

std::string CzechKey(QStringView text) {
    const auto size = static_cast<std::int32_t>(text.size());
    std::array<std::uint8_t, 256> buffer;
    const icu::Collator& collator = CzechCollator();
    const std::int32_t length =
        collator.getSortKey(text.utf16(), size, buffer.data(), buffer.size());
    std::string key(reinterpret_cast<const char*>(buffer.data()),
                    std::min<std::size_t>(static_cast<std::size_t>(length), buffer.size()));
    if (static_cast<std::size_t>(length) > buffer.size()) {
        key.resize(static_cast<std::size_t>(length));
        collator.getSortKey(text.utf16(), size, reinterpret_cast<std::uint8_t*>(key.data()),
                            length);
    }
    return key;
}

int CompareCzech(QStringView left, QStringView right) {
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult order =
        CzechCollator().compare(left.utf16(), static_cast<std::int32_t>(left.size()), right.utf16(),
                                static_cast<std::int32_t>(right.size()), status);
    if (U_FAILURE(status))
        throw StoreError("Texty nelze seřadit podle české abecedy.");
    return order;
}

} // namespace lorvo
