#pragma once
// The row above the panels: picture and title of the node on show, and the history's buttons.

#include "office/tree/node_history.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace lorvo {

class NodeTitle : public QWidget {
    Q_OBJECT
  public:
    /// The buttons step in the history by `show`. The history outlives the row.
    NodeTitle(NodeHistory& history, const NodeHistory::Show& show, QWidget* parent);

    void SetText(const QString& text);
    /// A null icon clears the picture.
    void SetPicture(const QIcon& icon);
    /// Enables the buttons as the history now has it.
    void UpdateButtons();

  private:
    NodeHistory& history_;
    QLabel* picMode;
    QLabel* lblItemTitle;
    QPushButton* cmdHistoryBack;
    QPushButton* cmdHistoryFwd;
};

} // namespace lorvo
