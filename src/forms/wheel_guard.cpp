#include "forms/wheel_guard.h"

#include "platform/failure_guard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>

namespace lorvo {

namespace {

/// The box whose value the wheel over that widget would change; null for none. A list that a box
/// has dropped down is a window of its own.
const QWidget* BoxAround(const QWidget* widget) {
    for (; widget && !widget->isWindow(); widget = widget->parentWidget())
        if (qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget))
            return widget;
    return nullptr;
}

/// The toolkit gives a box the keyboard when the wheel turns over it, before any filter hears of
/// it.
void KeepKeyboardFromWheel(QWidget& widget) {
    const bool box = qobject_cast<QComboBox*>(&widget) || qobject_cast<QAbstractSpinBox*>(&widget);
    if (box && widget.focusPolicy() == Qt::WheelFocus)
        widget.setFocusPolicy(Qt::StrongFocus);
}

} // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        if (!watched->isWidgetType())
            return false;
        if (event->type() == QEvent::Polish)
            KeepKeyboardFromWheel(*static_cast<QWidget*>(watched));
        if (event->type() != QEvent::Wheel)
            return false;
        const QWidget* box = BoxAround(static_cast<const QWidget*>(watched));
        const QWidget* focus = QApplication::focusWidget();
        if (!box || box == focus || box->isAncestorOf(focus))
            return false;
        event->ignore(); // what lies around the box may scroll
        return true;
    });
}

} // namespace lorvo
