#include "forms/command_tool_bar.h"

#include "platform/failure_guard.h"

#include <QActionEvent>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>

namespace lorvo {

CommandToolBar::CommandToolBar(const QString& name, QWidget* parent) : QToolBar(parent) {
    setObjectName(name);
    auto* way = new QShortcut(QKeySequence(Qt::Key_F10), this);
    Connect(way, &QShortcut::activated, this, &CommandToolBar::EnterBar);
    Connect(qApp, &QApplication::focusChanged, this, &CommandToolBar::NoteFocus);
}

// The buttons go after it; one that has the keyboard then still tells that it leaves.
CommandToolBar::~CommandToolBar() {
    qApp->disconnect(this);
}

void CommandToolBar::actionEvent(QActionEvent* event) {
    QToolBar::actionEvent(event);
    auto* button = qobject_cast<QToolButton*>(widgetForAction(event->action()));
    if (event->type() != QEvent::ActionAdded || !button)
        return;
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
}

QList<QToolButton*> CommandToolBar::Buttons() const {
    QList<QToolButton*> buttons;
    for (QAction* action : actions())
        if (auto* button = qobject_cast<QToolButton*>(widgetForAction(action));
            button && button->isVisible() && button->isEnabled())
            buttons << button;
    return buttons;
}

bool CommandToolBar::eventFilter(QObject* watched, QEvent* event) {
    auto* button = qobject_cast<QToolButton*>(watched);
    if (!button || event->type() != QEvent::KeyPress)
        return QToolBar::eventFilter(watched, event);
    return GuardedAnswer(
        true, [&]() -> bool { return PressKey(*button, static_cast<QKeyEvent*>(event)->key()); });
}

bool CommandToolBar::PressKey(QToolButton& button, int key) {
    switch (key) {
    case Qt::Key_Left:
        StepTo(button, -1);
        return true;
    case Qt::Key_Right:
        StepTo(button, 1);
        return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (button.defaultAction()->menu())
            DropDown(button);
        else if (key != Qt::Key_Down)
            Press(button);
        return true;
    case Qt::Key_Escape:
        LeaveBar();
        return true;
    default:
        return false;
    }
}

void CommandToolBar::StepTo(QToolButton& from, int step) {
    const QList<QToolButton*> buttons = Buttons();
    const qsizetype next = buttons.indexOf(&from) + step;
    if (next >= 0 && next < buttons.size())
        buttons[next]->setFocus(Qt::TabFocusReason);
}

// The command works on what has the keyboard, and a window that it opens gives it back there.
void CommandToolBar::Press(QToolButton& button) {
    LeaveBar();
    button.click();
}

void CommandToolBar::DropDown(QToolButton& button) {
    button.showMenu();
    LeaveBar();
}

void CommandToolBar::EnterBar() {
    const QList<QToolButton*> buttons = Buttons();
    if (!buttons.isEmpty())
        buttons.front()->setFocus(Qt::TabFocusReason);
}

void CommandToolBar::LeaveBar() {
    if (IsOnBar(window()->focusWidget()) && before_)
        before_->setFocus(Qt::OtherFocusReason);
}

void CommandToolBar::NoteFocus(QWidget* from, const QWidget* to) {
    if (IsOnBar(to) && from && !IsOnBar(from))
        before_ = from;
}

} // namespace lorvo
