#include "forms/label_edit_delegate.h"

#include "forms/cut_text_tip.h"
#include "forms/one_line_box.h"
#include "platform/failure_guard.h"
#include "store/text_width.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QTreeView>
#include <algorithm>
#include <utility>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
constexpr int kRowAir = 5; ///< pixels that a row is higher than its text
/// Lives as long as the editor.
class EditWatch : public QObject {
  public:
    EditWatch(LabelEditDelegate& delegate, const QTreeView& view, QLineEdit& editor)
        : QObject(&editor), delegate_(delegate), view_(view), editor_(editor) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        return GuardedAnswer(false, [&] {
            if (!ActsElsewhere(*watched, *event))
                return false;
            // The press that moves the keyboard has ended the edit before it comes here.
            if (delegate_.Editor() == &editor_)
                delegate_.EndEdit();
            return delegate_.IsRefused();
        });
    }

  private:
    bool ActsElsewhere(QObject& watched, const QEvent& event) const {
        if (event.type() == QEvent::Shortcut)
            return view_.isActiveWindow();
        const auto* widget = qobject_cast<const QWidget*>(&watched);
        return event.type() == QEvent::MouseButtonPress && widget &&
               widget->window() == view_.window() && widget != &editor_ &&
               !editor_.isAncestorOf(widget);
    }

    LabelEditDelegate& delegate_;
    const QTreeView& view_;
    QLineEdit& editor_;
};

} // namespace

LabelEditDelegate::LabelEditDelegate(QTreeView& view) : QStyledItemDelegate(&view), view_(view) {}

LabelEditDelegate::Edited LabelEditDelegate::TakeEdited() {
    editor_ = nullptr;
    refused_ = false;
    return std::exchange(edited_, {});
}

bool LabelEditDelegate::EndEdit() {
    QLineEdit* editor = editor_;
    if (!editor)
        return true;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, NoHint);
    RethrowFailure();
    return !refused_;
}

QWidget* LabelEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex& index) const {
    return GuardedAnswer(static_cast<QWidget*>(nullptr), [&]() -> QWidget* {
        if (mayEdit && !mayEdit(index))
            return nullptr;
        editor_ = new QLineEdit(parent);
        editor_->setObjectName(view_.objectName() + u".editor"_s);
        editor_->setFrame(false);
        editor_->setMaxLength(kLongestText);
        KeepOnOneLine(*editor_);
        editor_->setAutoFillBackground(true);
        edited_ = {index, {}};
        new EditWatch(const_cast<LabelEditDelegate&>(*this), view_, *editor_);
        return editor_;
    });
}

void LabelEditDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                     const QModelIndex& index) const {
    Guarded([&] {
        const auto* box = static_cast<QLineEdit*>(editor);
        if (box->isModified() || untouchedEdits)
            edited_ = {index, box->text()};
    });
}

QSize LabelEditDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), std::max(size.height(), option.fontMetrics.height() + kRowAir)};
}

bool LabelEditDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                  const QStyleOptionViewItem& option, const QModelIndex& index) {
    return GuardedAnswer(false, [&] {
        return ShowCutText(*event, *view, option, index) ||
               QStyledItemDelegate::helpEvent(event, view, option, index);
    });
}

void EndLabelEdits(QWidget& window) {
    for (const QTreeView* view : window.findChildren<QTreeView*>())
        if (auto* delegate = dynamic_cast<LabelEditDelegate*>(view->itemDelegate()))
            delegate->EndEdit();
}

void PaintGridLines(QPainter& painter, const QTreeView& view, const QRect& row) {
    const QHeaderView& header = *view.header();
    painter.save();
    painter.setPen(view.palette().color(QPalette::Midlight));
    painter.drawLine(row.left(), row.bottom(), header.length() - header.offset() - 1, row.bottom());
    for (int column = 0; column < header.count(); ++column) {
        const int right = header.sectionViewportPosition(column) + header.sectionSize(column) - 1;
        painter.drawLine(right, row.top(), right, row.bottom());
    }
    painter.restore();
}

} // namespace lorvo
