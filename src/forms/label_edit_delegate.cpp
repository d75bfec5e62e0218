#include "forms/label_edit_delegate.h"

#include "platform/failure_guard.h"

#include <QHeaderView>
#include <QPainter>
#include <QTreeView>
#include <algorithm>
#include <utility>

namespace lorvo {

namespace {
constexpr int kRowAir = 5;        ///< pixels that a row is higher than its text
constexpr int kLongestText = 255; ///< as much as a text field of the store takes
} // namespace

LabelEditDelegate::LabelEditDelegate(QTreeView& view) : QStyledItemDelegate(&view), view_(view) {}

std::optional<LabelEditDelegate::Edited> LabelEditDelegate::TakeEdited() {
    return std::exchange(edited_, std::nullopt);
}

QWidget* LabelEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex& index) const {
    return GuardedAnswer(static_cast<QWidget*>(nullptr), [&]() -> QWidget* {
        if (mayEdit && !mayEdit(index))
            return nullptr;
        editor_ = new QLineEdit(parent);
        editor_->setObjectName(view_.objectName() + QStringLiteral(".editor"));
        editor_->setFrame(false);
        editor_->setMaxLength(kLongestText);
        editor_->setAutoFillBackground(true);
        return editor_;
    });
}

void LabelEditDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                     const QModelIndex& index) const {
    Guarded([&] {
        const auto* box = static_cast<QLineEdit*>(editor);
        if (box->isModified() || untouchedEdits)
            edited_ = Edited{index, box->text()};
    });
}

QSize LabelEditDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), std::max(size.height(), option.fontMetrics.height() + kRowAir)};
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
