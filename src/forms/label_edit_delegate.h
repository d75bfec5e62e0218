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
///
/// While the editor is open, a click or an access key elsewhere in the window ends the edit first,
/// also where the keyboard stays; when the view refuses what was typed, the click does nothing
/// else.
class LabelEditDelegate : public QStyledItemDelegate {
  public:
    explicit LabelEditDelegate(QTreeView& view);

    /// Asked before an edit begins; false keeps it from starting.
    std::function<bool(const QModelIndex&)> mayEdit;
    /// Whether an edit counts in which nothing was typed.
    bool untouchedEdits = true;

    struct Edited {
        QPersistentModelIndex index; ///< invalid when no edit has ended
        std::optional<QString> text; ///< nullopt when the edit was given up
    };
    /// The edit that has just ended; for the view, which has closed its editor.
    Edited TakeEdited();
    /// What became of it: whether the view refused the text.
    void SetRefused(bool refused) { refused_ = refused; }
    bool IsRefused() const { return refused_; }

    /// Ends the edit that goes on as loss of focus does; nothing when none does. False when the
    /// view refused the text.
    bool EndEdit();
    /// Null when no edit goes on.
    QLineEdit* Editor() const { return editor_; }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// A text that doesn't fit is shown whole under the mouse.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    QTreeView& view_;
    // The toolkit's editing calls are const.
    mutable QPointer<QLineEdit> editor_;
    mutable Edited edited_;
    bool refused_ = false;
};

/// Ends the edits in place that go on in the window's lists and trees.
void EndLabelEdits(QWidget& window);

/// The lines below and between the cells of a row, which lies at `row` of the view.
void PaintGridLines(QPainter& painter, const QTreeView& view, const QRect& row);

} // namespace lorvo
