// What the keys do in a date box.
#include "forms/date_box.h"
#include "platform/failure_guard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <algorithm>

namespace lorvo {

namespace {

constexpr QStringView kSigns = u"./-,";
constexpr int kDayDigits = 2;

bool IsSign(QChar c) {
    return kSigns.contains(c);
}

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool IsEdit(const QKeyEvent& key) {
    for (const QKeySequence::StandardKey edit :
         {QKeySequence::Paste, QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Undo,
          QKeySequence::Redo, QKeySequence::SelectAll})
        if (key.matches(edit))
            return true;
    return key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Delete;
}

bool Writes(const QKeyEvent& key) {
    const bool command = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return !command && !key.text().isEmpty() && key.text().at(0).isPrint();
}

bool MovesCursor(const QKeyEvent& key) {
    return key.key() == Qt::Key_Left || key.key() == Qt::Key_Right || key.key() == Qt::Key_Home ||
           key.key() == Qt::Key_End;
}

} // namespace

void DateBox::keyPressEvent(QKeyEvent* event) {
    const bool confirms = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool selects = event->modifiers() & Qt::ShiftModifier;
    Guarded([&] {
        if (IsTyping() && (confirms || event->key() == Qt::Key_Escape))
            ConfirmTyped(event);
        else if (IsEdit(*event) || Writes(*event) || (IsTyping() && MovesCursor(*event)))
            Type(event);
        else if (!selects && event->key() == Qt::Key_Left)
            ChoosePart(currentSectionIndex() - 1);
        else if (!selects && event->key() == Qt::Key_Right)
            ChoosePart(currentSectionIndex() + 1);
        else
            QDateEdit::keyPressEvent(event);
    });
}

void DateBox::ChoosePart(int index) {
    setSelectedSection(sectionAt(std::clamp(index, 0, sectionCount() - 1)));
}

/// Shows what a spelling means, or after Esc the last good date; only a date that the box shows
/// already goes on to the window's default button.
void DateBox::ConfirmTyped(QKeyEvent* event) {
    const bool seen = WholeDate(lineEdit()->text()).has_value();
    if (event->key() == Qt::Key_Escape)
        setDate(date());
    else
        TakeTyped();
    SelectAllText();
    if (seen)
        QDateEdit::keyPressEvent(event);
    else
        event->accept();
}

void DateBox::Type(QKeyEvent* event) {
    const QScopedValueRollback own(ownCursor_, true);
    if (event->matches(QKeySequence::Paste) && WholeDate(QGuiApplication::clipboard()->text()))
        lineEdit()->selectAll();
    if (Writes(*event) && GoesToNextPart(event->text()))
        return;
    MakeRoom(event->text());
    lineEdit()->event(event);
}

/// In front of a separator of the date that stood there before, a typed one is that one, and the
/// next part is what is typed over. The blank that many type behind it has nothing to replace.
bool DateBox::GoesToNextPart(const QString& typed) {
    const QString text = lineEdit()->text();
    const int at = lineEdit()->cursorPosition();
    if (lineEdit()->hasSelectedText())
        return typed == u" " && lineEdit()->selectedText() != text;
    if (!IsSign(typed.at(0)) || at == 0 || at >= text.size() || !IsDigit(text.at(at - 1)) ||
        !IsSign(text.at(at)))
        return false;
    const auto from = std::find_if(text.begin() + at, text.end(), IsDigit);
    const auto to = std::find_if_not(from, text.end(), IsDigit);
    lineEdit()->setSelection(static_cast<int>(from - text.begin()), static_cast<int>(to - from));
    return true;
}

/// A third digit in the first part begins a date without separators: the rest of the old one goes.
void DateBox::MakeRoom(const QString& typed) {
    const QString text = lineEdit()->text();
    const int at = lineEdit()->cursorPosition();
    if (typed.isEmpty() || !IsDigit(typed.at(0)) || lineEdit()->hasSelectedText() ||
        at != kDayDigits || at >= text.size() || !IsSign(text.at(at)))
        return;
    if (std::all_of(text.begin(), text.begin() + at, IsDigit))
        lineEdit()->setSelection(at, static_cast<int>(text.size()) - at);
}

} // namespace lorvo
