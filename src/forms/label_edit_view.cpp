#include "forms/label_edit_view.h"

#include "platform/failure_guard.h"

#include <QCoreApplication>
#include <QEvent>
#include <functional>
#include <utility>

namespace lorvo {

namespace {

bool IsDeed(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        return true;
    default:
        return false;
    }
}

/// Looks out for the next deed anywhere in the program.
class DeedWatch : public QObject {
  public:
    DeedWatch(QObject* parent, std::function<void()> then)
        : QObject(parent), then_(std::move(then)) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        return GuardedAnswer(false, [&] {
            if (then_ && IsDeed(*event)) {
                std::exchange(then_, nullptr)();
                deleteLater(); // it hears of every event
            }
            return false;
        });
    }

  private:
    std::function<void()> then_;
};

} // namespace

bool LabelEditView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        if (waiting_)
            waiting_->deleteLater();
        const bool taken = QTreeView::edit(index, trigger, event);
        if (taken && trigger == SelectedClicked)
            // To the toolkit a current row that changes is what takes a waiting edit back.
            waiting_ = new DeedWatch(
                this, [this] { LabelEditView::edit(currentIndex(), CurrentChanged, nullptr); });
        return taken;
    });
}

} // namespace lorvo
