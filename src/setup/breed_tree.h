#pragma once
// The view of the breeds with columns and check boxes.

#include "forms/label_edit_view.h"
#include "setup/breed_tree_model.h"

#include <QElapsedTimer>

namespace lorvo {

class LabelEditDelegate;

class BreedTree : public LabelEditView {
    Q_OBJECT
  public:
    BreedTree(const char* name, std::vector<BreedTreeModel::Column> columns, QWidget* parent);

    BreedTreeModel& Model() const { return *model_; }

    /// Null when none is selected.
    BreedNode* SelectedNode() const;
    /// Selects the node and makes it visible.
    void SelectNode(const BreedNode& node);
    /// Grid lines by the preference.
    void FollowGridPreference();
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  Q_SIGNALS:
    void DeletePressed();
    /// The right button was released over the node, which is selected.
    void RightClick();
    /// Editing in place begins; set *cancel to keep it from starting.
    void BeforeLabelEdit(lorvo::BreedNode* node, bool* cancel);
    /// Editing in place ended with a text that was typed; the node still shows its old one. *cancel
    /// tells that the text is refused.
    void AfterLabelEdit(lorvo::BreedNode* node, const QString& text, bool* cancel);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Only the letters of JumpToLetter move the selection, and one at a time.
    void keyboardSearch(const QString&) override {}
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

  private:
    void AskForMenu();
    /// Takes a key that belongs to a name being typed.
    bool IsTyped(const QKeyEvent& event);
    void JumpToLetter(QChar letter);

    BreedTreeModel* model_;
    LabelEditDelegate* delegate_;
    bool gridLines_ = false;
    QElapsedTimer lastTyped_; ///< runs from the last key of a name
};

} // namespace lorvo
