#include "forms/controls.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

namespace lorvo {

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

class DigitsOnly : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
            return TypesNonDigit(static_cast<QKeyEvent&>(*event));
        case QEvent::InputMethod:
            return HasNonDigit(static_cast<QInputMethodEvent&>(*event).commitString());
        default:
            return false;
        }
    }
};

} // namespace

void SetNumberStyle(QLineEdit& box) {
    box.installEventFilter(new DigitsOnly(&box));
}

} // namespace lorvo
