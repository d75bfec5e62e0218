#include "forms/one_line_box.h"

#include "platform/failure_guard.h"
#include "platform/values/joined_lines.h"

#include <QLineEdit>
#include <algorithm>

namespace lorvo {

namespace {

/// Changes the box's text where it differs, as one step that can be taken back.
void ChangeTo(QLineEdit& box, const QString& text) {
    const QString old = box.text();
    const auto first = std::mismatch(old.begin(), old.end(), text.begin(), text.end());
    const auto last = std::mismatch(old.rbegin(), std::make_reverse_iterator(first.first),
                                    text.rbegin(), std::make_reverse_iterator(first.second));
    box.setSelection(static_cast<int>(first.first - old.begin()),
                     static_cast<int>(last.first.base() - first.first));
    box.insert(QString(first.second, last.second.base() - first.second));
}

} // namespace

void KeepOnOneLine(QLineEdit& box) {
    Connect(&box, &QLineEdit::textEdited, &box, [&box](const QString& text) {
        const QString line = JoinedLines(text);
        if (line == text)
            return;
        box.undo(); // else taking the paste back would bring its breaks back first
        if (box.text() != line)
            ChangeTo(box, line);
    });
    // What was pasted is told of last, after the change that was made while it was told.
    Connect(&box, &QLineEdit::textChanged, &box, [&box](const QString& told) {
        if (const QString text = box.text(); told != text)
            Q_EMIT box.textChanged(text);
    });
}

} // namespace lorvo
