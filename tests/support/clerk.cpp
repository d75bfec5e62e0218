#include "support/clerk.h"

#include "forms/access_keys.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWindow>
#include <gtest/gtest.h>

namespace lorvo::test {

namespace {

constexpr int kPatience = 2000; ///< milliseconds, one for each try
constexpr int kMostSteps = 60;

QWidget* WindowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(window) && window->isVisible())
            return window;
    return nullptr;
}

/// A closed menu hands the keyboard back to the window below; the offscreen desktop doesn't.
class MenuWatch : public QObject {
  public:
    explicit MenuWatch(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* menu = event->type() == QEvent::Hide ? qobject_cast<QMenu*>(watched) : nullptr;
        QWidget* window = menu ? WindowInFront() : nullptr;
        if (window)
            window->activateWindow();
        return false;
    }
};

/// Closes what a clerk who doesn't get on has left open, so that the test comes to its end.
void LeaveAll() {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* open = popup ? popup : QApplication::activeModalWidget();
    if (!open)
        return;
    QTimer::singleShot(1, qApp, LeaveAll);
    open->close();
}

/// Whether the keyboard is at the control of that name, or at a part that it is made of.
bool IsAt(const QString& control) {
    for (const QWidget* widget = QApplication::focusWidget(); widget && !widget->isWindow();
         widget = widget->parentWidget())
        if (widget->objectName() == control)
            return true;
    return false;
}

/// The letter of the control, or of the caption that leads to it; null when there is none.
QChar LetterOf(const QWidget& window, const QString& control) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (const auto* button = qobject_cast<const QToolButton*>(widget);
            button && button->defaultAction() && button->defaultAction()->objectName() == control)
            return AccessKeyOf(*button);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QWidget* target = label && label->buddy() ? label->buddy() : widget;
        if (widget->isVisible() && target->objectName() == control &&
            !AccessKeyOf(*widget).isNull())
            return AccessKeyOf(*widget);
    }
    return {};
}

/// Where the keyboard is.
QWidget* Target() {
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::focusWidget();
}

QString Focus() {
    const QWidget* at = QApplication::focusWidget();
    const QWidget* window = WindowInFront();
    return (window ? window->objectName() : QString()) + u'/' + (at ? at->objectName() : QString());
}

} // namespace

Clerk& Clerk::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    steps_.push_back([=, this] {
        ++keys_;
        Give(key, modifiers);
        return true;
    });
    return *this;
}

Clerk& Clerk::Alt(const QString& control) {
    steps_.push_back([=, this] {
        const QWidget* window = WindowInFront();
        const QChar letter = window ? LetterOf(*window, control) : QChar();
        if (letter.isNull())
            return false;
        ++keys_;
        Give(static_cast<Qt::Key>(letter.unicode()), Qt::AltModifier);
        return true;
    });
    return *this;
}

Clerk& Clerk::Choose(const QString& entry) {
    steps_.push_back([=, this, downs = 0]() mutable {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return false;
        const QAction* at = menu->activeAction();
        const bool there = at && at->text().remove(u'&') == entry;
        if (!there && ++downs > kMostSteps) {
            ADD_FAILURE() << "no entry " << entry.toStdString();
            return true;
        }
        ++keys_;
        waits_ = 0;
        Give(there ? Qt::Key_Return : Qt::Key_Down);
        return there;
    });
    return *this;
}

Clerk& Clerk::Type(const QString& text) {
    steps_.push_back([=] {
        for (const QChar letter : text)
            if (QWidget* at = Target())
                QTest::sendKeyEvent(QTest::Click, at, Qt::Key_unknown, QString(letter), {});
        return true;
    });
    return *this;
}

Clerk& Clerk::TabTo(const QString& control) {
    steps_.push_back([=, this, tabs = 0]() mutable {
        if (IsAt(control))
            return true;
        if (++tabs > kMostSteps) {
            ADD_FAILURE() << "Tab doesn't come to " << control.toStdString();
            return true;
        }
        ++keys_;
        waits_ = 0;
        Give(Qt::Key_Tab);
        return IsAt(control);
    });
    return *this;
}

Clerk& Clerk::Await(const QString& control) {
    steps_.push_back([=] { return IsAt(control); });
    return *this;
}

Clerk& Clerk::Look(std::function<void()> look) {
    steps_.push_back([look = std::move(look)] {
        look();
        return true;
    });
    return *this;
}

void Clerk::Give(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    // A key may end the window that it goes to.
    const QPointer<QWidget> at = Target();
    if (at)
        QTest::keyPress(at, key, modifiers);
    if (at)
        QTest::keyRelease(at, key, modifiers);
}

bool Clerk::IsAtRest() {
    const QWidget* at = Target();
    if (!at)
        return false;
    // A menu or a window is there once the window system has said so; keys before that would
    // overtake it, and an edit begun before that ends when the window below a menu comes back.
    const QWidget* window = at->window();
    return window->windowHandle() == QGuiApplication::focusWindow() &&
           (at == QApplication::activePopupWidget() || window == WindowInFront());
}

// A step may wait in the loop of what it opens; the one after it goes on from there.
void Clerk::Next() {
    QTimer::singleShot(1, qApp, [this] {
        if (steps_.empty())
            return;
        Step step = steps_.front();
        steps_.pop_front();
        if (waits_ > kPatience) {
            ADD_FAILURE() << "the clerk doesn't get on, at " << Focus().toStdString();
            steps_.clear();
            LeaveAll();
            return;
        }
        const auto left = steps_.size();
        Next();
        if (IsAtRest() && step()) {
            waits_ = 0;
        } else if (steps_.size() == left) {
            ++waits_;
            steps_.push_front(step);
        }
    });
}

void Clerk::Work() {
    Next();
    QEventLoop loop;
    new MenuWatch(&loop);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &loop, [&, idle = 0]() mutable {
        if (!steps_.empty())
            return;
        loop.quit();
        if (++idle == kPatience * 5) {
            ADD_FAILURE() << "the clerk has left open " << Focus().toStdString();
            LeaveAll();
        }
    });
    watch.start(1);
    loop.exec();
    QCoreApplication::processEvents(); // what the last key has put off, as an edit's end
}

} // namespace lorvo::test
