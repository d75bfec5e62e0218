#include "forms/date_box.h"

#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/qt_date.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPainter>
#include <QScopedValueRollback>
#include <utility>

namespace lorvo {

namespace {

const QColor kDoubtfulOnLight(0xc0, 0x10, 0x10);
const QColor kDoubtfulOnDark(0xff, 0x80, 0x80);

/// Blanks of all kinds as plain ones, which pasted text may lack.
std::string PlainText(const QString& text) {
    return text.simplified().toStdString();
}

} // namespace

DateBox::DateBox(YearWindow window, QWidget* parent) : QDateEdit(parent), window_(window) {
    // The toolkit leaves a part as soon as it is full and brings the date in order by its own
    // lights whenever the cursor comes to another part. While something is being typed, neither may
    // happen.
    disconnect(lineEdit(), &QLineEdit::cursorPositionChanged, this, nullptr);
    Connect(lineEdit(), &QLineEdit::cursorPositionChanged, this, &DateBox::FollowCursor);
    Connect(lineEdit(), &QLineEdit::textChanged, this, qOverload<>(&QWidget::update));
    lineEdit()->installEventFilter(this);
}

DateOrder DateBox::Order() const {
    const QString pattern = displayFormat();
    return pattern.indexOf(u'M') < pattern.indexOf(u'd') ? DateOrder::MonthFirst
                                                         : DateOrder::DayFirst;
}

bool DateBox::IsTyping() const {
    return lineEdit()->text() != textFromDateTime(dateTime());
}

std::optional<QDate> DateBox::WholeDate(const QString& text) const {
    if (text == textFromDateTime(dateTime()))
        return date();
    const auto whole = WholeDateFromText(PlainText(text), Order());
    if (!whole || ToQDate(*whole) < minimumDate() || ToQDate(*whole) > maximumDate())
        return {};
    return ToQDate(*whole);
}

std::optional<QDate> DateBox::TypedDate() const {
    if (const auto whole = WholeDate(lineEdit()->text()))
        return whole;
    const auto typed = DateFromText(PlainText(lineEdit()->text()), Order(),
                                    ThePlatform().clock->Now().DateOnly(), window_);
    if (!typed || ToQDate(*typed) < minimumDate() || ToQDate(*typed) > maximumDate())
        return {};
    return ToQDate(*typed);
}

bool DateBox::IsDoubtful() const {
    return !TypedDate();
}

QValidator::State DateBox::validate(QString& text, int&) const {
    return WholeDate(text) ? QValidator::Acceptable : QValidator::Intermediate;
}

QDateTime DateBox::dateTimeFromText(const QString& text) const {
    return {WholeDate(text).value_or(date()), time()};
}

void DateBox::TakeTyped() {
    if (IsTyping())
        setDate(TypedDate().value_or(date()));
}

void DateBox::SelectAllText() {
    const QScopedValueRollback own(ownCursor_, true);
    lineEdit()->selectAll();
}

void DateBox::FollowCursor(int from, int to) {
    updateMicroFocus();
    if (ownCursor_)
        return;
    if (IsTyping())
        NotePart(from, to);
    else
        TellMove(from, to);
}

/// Hands a move of the cursor to the toolkit's own slot.
void DateBox::TellMove(int from, int to) {
    const QMetaObject& meta = QAbstractSpinBox::staticMetaObject;
    static const int slot = meta.indexOfSlot("_q_editorCursorPositionChanged(int,int)");
    meta.method(slot).invoke(this, Qt::DirectConnection, Q_ARG(int, from), Q_ARG(int, to));
}

void DateBox::NotePart(int from, int to) {
    // Under a selection the toolkit takes note of the part and leaves the text alone.
    const QSignalBlocker quiet(lineEdit());
    const int start = lineEdit()->selectionStart();
    const int length = lineEdit()->selectionLength();
    lineEdit()->selectAll();
    TellMove(from, to);
    if (start >= 0)
        lineEdit()->setSelection(start, length);
    else
        lineEdit()->setCursorPosition(to);
}

void DateBox::focusInEvent(QFocusEvent* event) {
    Guarded([&] {
        QDateEdit::focusInEvent(event);
        selectOnRelease_ = event->reason() == Qt::MouseFocusReason;
        const bool comesBack = event->reason() == Qt::PopupFocusReason ||
                               event->reason() == Qt::ActiveWindowFocusReason;
        if (!selectOnRelease_ && !comesBack) {
            setSelectedSection(sectionAt(0));
            SelectAllText();
        }
    });
}

void DateBox::focusOutEvent(QFocusEvent* event) {
    Guarded([&] {
        TakeTyped();
        QDateEdit::focusOutEvent(event);
    });
}

bool DateBox::focusNextPrevChild(bool next) {
    return QWidget::focusNextPrevChild(next); // not from part to part, which the arrow keys do
}

bool DateBox::eventFilter(QObject* watched, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        // What has been typed until then stands; the next digits are another date's.
        if (event->type() == QEvent::MouseButtonPress && !IsTyping())
            Q_EMIT editingFinished();
        if (event->type() == QEvent::MouseButtonRelease && std::exchange(selectOnRelease_, false) &&
            !lineEdit()->hasSelectedText())
            SelectAllText();
        return QDateEdit::eventFilter(watched, event);
    });
}

void DateBox::mousePressEvent(QMouseEvent* event) {
    Guarded([&] {
        TakeTyped(); // the calendar opens on it
        QDateEdit::mousePressEvent(event);
    });
}

void DateBox::stepBy(int steps) {
    TakeTyped();
    QDateEdit::stepBy(steps);
    setSelectedSection(currentSection());
}

void DateBox::paintEvent(QPaintEvent* event) {
    QDateEdit::paintEvent(event);
    if (!IsDoubtful())
        return;
    const bool onDark = palette().color(QPalette::Base).lightness() < 128;
    QPainter painter(this);
    painter.setPen(QPen(onDark ? kDoubtfulOnDark : kDoubtfulOnLight, 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

} // namespace lorvo
