#pragma once
// Lines of the dog panel, ticked and not.

#include "office/cards/card_line.h"

#include <string_view>

namespace lorvo {

inline CheckLine Line(const QString& key, LineIcon icon, bool checked) {
    CheckLine line;
    line.key = key;
    line.icon = icon;
    line.checked = checked;
    return line;
}

/// Two shows and two competitions; `ticks` has an x for each ticked line.
inline CheckLines Lines(std::string_view ticks) {
    return {Line(QStringLiteral("V1"), LineIcon::Show, ticks[0] == 'x'),
            Line(QStringLiteral("V20"), LineIcon::Show, ticks[1] == 'x'),
            Line(QStringLiteral("k3"), LineIcon::Competition, ticks[2] == 'x'),
            Line(QStringLiteral("k41"), LineIcon::Competition, ticks[3] == 'x')};
}

} // namespace lorvo
