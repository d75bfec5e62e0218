#include "office/dogs/class_eligibility.h"

#include <algorithm>

namespace lorvo {

// kept: two-ways-to-count-months
int AgeInMonths(DateValue born, DateValue show, ClassList list) {
    // The standard classes look at the eve of the show; that is what makes an exact birthday count
    // one month less there.
    const DateValue day = list == ClassList::Standard ? show.PlusDays(-1) : show;
    return MonthDifference(born.PlusDays(-day.Day()), day);
}

std::vector<int> OpenClasses(int age, std::span<const std::int16_t> from,
                             std::span<const std::int16_t> to) {
    std::vector<int> classes;
    for (std::size_t i = 0; i < std::min(from.size(), to.size()); ++i) {
        if (IsClassOpen(age, from[i], to[i]))
            classes.push_back(static_cast<int>(i) + 1);
    }
    return classes;
}

std::string ClassCaption(std::string_view hint, std::string_view showDate, int age) {
    std::string caption(hint);
    caption.append(" (").append(showDate).append(") =").append(std::to_string(age));
    return caption.append(" měsíců.");
}

} // namespace lorvo
