#include "forms/box_hints.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

bool HasNonDigit(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c < u'0' || c > u'9'; });
}

/// Commands such as Ctrl+V write nothing; Ctrl and Alt together choose a letter's third meaning.
bool IsCommand(const QKeyEvent& key) {
    return key.modifiers().testFlag(Qt::ControlModifier) !=
           key.modifiers().testFlag(Qt::AltModifier);
}

bool TypesNonDigit(const QKeyEvent& key) {
    const QString text = key.text();
    return !text.isEmpty() && text[0].isPrint() && !IsCommand(key) && HasNonDigit(text);
}

bool TypesNonDigit(const QEvent& event) {
    if (event.type() == QEvent::KeyPress)
        return TypesNonDigit(static_cast<const QKeyEvent&>(event));
    return event.type() == QEvent::InputMethod &&
           HasNonDigit(static_cast<const QInputMethodEvent&>(event).commitString());
}

class DigitsOnly : public QObject {
  public:
    explicit DigitsOnly(QLineEdit& box) : QObject(&box), box_(box) {}

    bool eventFilter(QObject*, QEvent* event) override {
        return GuardedAnswer(false, [&]() -> bool {
            if (!TypesNonDigit(*event))
                return false;
            // A sign lost in silence makes 150,50 a hundred times as much.
            HintAt(box_, u"Píšou se sem jen číslice, bez desetinných míst."_s);
            return true;
        });
    }

  private:
    QLineEdit& box_;
};

} // namespace

void SetNumberStyle(QLineEdit& box) {
    box.installEventFilter(new DigitsOnly(box));
}

} // namespace lorvo
