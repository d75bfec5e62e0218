#pragma once
// What the dog and owner cards are made of: texts with a colour, and lines of check lists.

#include "office/texts/colours.h"

#include <QString>
#include <array>
#include <optional>
#include <vector>

namespace lorvo {

/// A text and the colour that carries its meaning; without one it has the window's own.
struct InkedText {
    QString text;
    std::optional<QColor> colour;
    QString spoken = {}; ///< what the colour says beside the text, for those who can't see it

    bool operator==(const InkedText&) const = default;
};

/// The small icon of a line, which alone tells shows and competitions apart.
enum class LineIcon { None = 0, Show = 1, Competition = 2 };

/// A line of a list with check boxes. The record's ID is the key without its first letter.
struct CheckLine {
    QString key;
    QString tag;
    LineIcon icon = LineIcon::None;
    QString text;
    std::array<InkedText, 3> subItems;
    bool checked = false;

    int ID() const { return QStringView(key).mid(1).toInt(); }
};

using CheckLines = std::vector<CheckLine>;

/// The line with that key; nullptr when there is none.
inline CheckLine* FindLine(CheckLines& lines, const QString& key) {
    for (CheckLine& line : lines)
        if (line.key == key)
            return &line;
    return nullptr;
}

} // namespace lorvo
