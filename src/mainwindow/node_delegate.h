#pragma once
// How a node of the main tree is drawn and renamed in place.

#include <QStyledItemDelegate>

namespace lorvo {

/// Draws a selected node with or without the selection bar and the focus frame.
class NodeDelegate : public QStyledItemDelegate {
    Q_OBJECT
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool selectionBarShown = true;

    /// A line that takes no more than a text field of the store holds.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// A text that doesn't fit is shown whole under the mouse.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace lorvo
