#pragma once
// How a node of the main tree is drawn.

#include <QStyledItemDelegate>

namespace lorvo {

/// Draws a selected node with or without the selection bar and the focus frame.
class NodeDelegate : public QStyledItemDelegate {
    Q_OBJECT
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool selectionBarShown = true;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace lorvo
