#include "platform/values/joined_lines.h"

#include <utility>

namespace lorvo {

namespace {

bool IsBreak(QChar c) {
    return (c >= u'\t' && c <= u'\r') || c == u'\x85' || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

bool IsHalf(const QString& text, qsizetype place) {
    const QChar c = text[place];
    if (c.isHighSurrogate())
        return place + 1 >= text.size() || !text[place + 1].isLowSurrogate();
    return c.isLowSurrogate() && (place == 0 || !text[place - 1].isHighSurrogate());
}

bool BelongsIn(const QString& text, qsizetype place) {
    return text[place].category() != QChar::Other_Control && text[place] < u'\xFFFE' &&
           !IsHalf(text, place);
}

} // namespace

QString JoinedLines(const QString& text) {
    QString line;
    bool isBroken = false;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (IsBreak(text[place])) {
            isBroken = !line.isEmpty();
        } else if (BelongsIn(text, place)) {
            if (std::exchange(isBroken, false) && !line.endsWith(u' ') && text[place] != u' ')
                line += u' ';
            line += text[place];
        }
    }
    return line;
}

} // namespace lorvo
