#include "show/show_size.h"

#include <algorithm>
#include <iterator>

namespace lorvo::show {

namespace {

constexpr ShowSize kSizes[] = {
    {"club", 400, 240, 4, 14, 2, 352},
    {"national", 4000, 2400, 14, 160, 8, 3520},
    {"world", 25000, 15000, 40, 340, 24, 22000},
};

struct NumbersName {
    std::string_view name;
    Numbers numbers;
};
constexpr NumbersName kNumbersNames[] = {
    {"none", Numbers::None}, {"some", Numbers::Some}, {"all", Numbers::All}};

} // namespace

std::optional<ShowSize> SizeNamed(std::string_view name) {
    const auto* size = std::find_if(std::begin(kSizes), std::end(kSizes),
                                    [name](const ShowSize& each) { return each.name == name; });
    return size == std::end(kSizes) ? std::nullopt : std::optional(*size);
}

std::optional<Numbers> NumbersNamed(std::string_view name) {
    const auto* found = std::find_if(std::begin(kNumbersNames), std::end(kNumbersNames),
                                     [name](const NumbersName& each) { return each.name == name; });
    return found == std::end(kNumbersNames) ? std::nullopt : std::optional(found->numbers);
}

} // namespace lorvo::show
