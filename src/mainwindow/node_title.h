#pragma once
// The row above the panels: picture and title of the node on show, and the history's buttons.

#include "mainwindow/told_needs.h"
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

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    NodeHistory& history_;
    QWidget* row_;
    ToldNeeds told_;
    QLabel* picMode;
    QLabel* lblItemTitle;
    QPushButton* cmdHistoryBack;
    QPushButton* cmdHistoryFwd;
};

} // namespace lorvo
