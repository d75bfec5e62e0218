#pragma once
// The tree view whose rows are edited in place: the report list and the breeds build on it.

#include <QPointer>
#include <QTreeView>

namespace lorvo {

/// A click on the row that is selected already edits it in place, after the time in which a second
/// click would make it a double click. Whatever the clerk does within that time takes the edit
/// back, so that it doesn't open behind the window or the question that a command shows.
class LabelEditView : public QTreeView {
    Q_OBJECT
  public:
    using QTreeView::QTreeView;

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

  private:
    QPointer<QObject> waiting_; ///< lives as long as an edit may still begin by itself
};

} // namespace lorvo
