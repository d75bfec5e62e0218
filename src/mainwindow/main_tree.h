#pragma once
// The tree of the main window, tvwMain: the view and its ways with mouse and keyboard. What a
// command does is not its matter.

#include "office/tree/tree_model.h"

#include <QTreeView>

namespace lorvo {

class NodeDelegate;
struct ViewPreferences;

class MainTree : public QTreeView {
    Q_OBJECT
  public:
    /// Nodes and look outlive the view.
    MainTree(TreeNodes& nodes, const ViewPreferences& look, QWidget* parent);

    TreeNodes& Nodes() const { return nodes_; }
    QIcon IconOf(const TreeNode& node) const { return model_->IconOf(node); }

    /// Rebuilds the nodes from the database, nothing selected, all collapsed but what the settings
    /// bring back expanded while classes are shown. Raises what LoadTree raises.
    void LoadData();

    /// Null when none is selected.
    TreeNode* SelectedNode() const;
    /// Selects the node and makes it visible, without NodeClick.
    void SelectNode(const TreeNode* node);
    /// Expands what the node lies in and scrolls to it.
    void EnsureVisible(const TreeNode* node);
    void ExpandEveryNode();
    /// Without NodeCollapse; what is selected stays so.
    void CollapseEveryNode();
    /// Keys of the expanded nodes in the tree's order.
    QStringList ExpandedKeys() const;

    /// Starts editing the text in place, which nothing else does.
    void StartLabelEdit(const TreeNode* node);
    /// Without its selection bar the tree shows the highlighting behind a selected node.
    void SetSelectionBarShown(bool shown);
    bool IsSelectionBarShown() const;

    /// The node whose text, picture or opening sign lies there; none right of the text.
    QModelIndex indexAt(const QPoint& point) const override;

  Q_SIGNALS:
    /// A node was clicked with the left button; it is selected.
    void NodeClick(lorvo::TreeNode* node);
    void NodeDoubleClick(lorvo::TreeNode* node);
    /// The clerk collapsed a node.
    void NodeCollapse(lorvo::TreeNode* node);
    /// The right button was released over the node; null over none.
    void RightClick(lorvo::TreeNode* node);
    void DeletePressed();
    void RenamePressed();
    void FindPressed();
    void FindNextPressed();
    void HomePressed();
    /// Comes last, after whatever a key did.
    void KeyDone();
    /// Editing in place ended with a text; the node still has its old one.
    void LabelEdited(lorvo::TreeNode* node, const QString& text);
    /// Editing in place has ended, with a text or without.
    void LabelEditEnded();
    /// A breed or dog was dropped on a node.
    void NodeDropped(lorvo::TreeNode* dragged, lorvo::TreeNode* target);

  protected:
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void AskForMenu();
    using Signal = void (MainTree::*)();
    static Signal SignalOf(const QKeyEvent& event);
    TreeNode* NodeUnder(const QPoint& point) const;
    void SetCurrent(const TreeNode* node);
    void BringCurrentInSight();
    bool GoesToFirstNode(const QKeyEvent& event) const;

    TreeNodes& nodes_;
    TreeModel* model_;
    NodeDelegate* delegate_;
    const ViewPreferences& look_;
};

} // namespace lorvo
