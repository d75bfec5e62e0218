#pragma once
// What the report list and trees with columns share in showing and editing their rows.

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>
#include <functional>
#include <optional>

class QPainter;
class QTreeView;

namespace lorvo {

/// Gives rows some air, opens the in-place editor, and keeps what it committed until the view has
/// closed it: only then may a handler show message boxes or take the row away.
class LabelEditDelegate : public QStyledItemDelegate {
  public:
    explicit LabelEditDelegate(QTreeView& view);

    /// Asked before an edit begins; false keeps it from starting.
    std::function<bool(const QModelIndex&)> mayEdit;
    /// Whether an edit counts in which nothing was typed.
    bool untouchedEdits = true;

    struct Edited {
        QPersistentModelIndex index;
        QString text;
    };
    /// What the edit that has just ended committed; nullopt when it was given up.
    std::optional<Edited> TakeEdited();
    /// Null when no edit goes on.
    QLineEdit* Editor() const { return editor_; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    QTreeView& view_;
    // The toolkit's editing calls are const.
    mutable QPointer<QLineEdit> editor_;
    mutable std::optional<Edited> edited_;
};

/// The lines below and between the cells of a row, which lies at `row` of the view.
void PaintGridLines(QPainter& painter, const QTreeView& view, const QRect& row);

} // namespace lorvo
