#pragma once
// The panel of a ring: how many breeds and dogs it holds, and their share of all.

#include "office/cards/node_figures.h"

#include <QWidget>

class QLabel;

namespace lorvo {

class LinkLabel;

class RingPanel : public QWidget {
    Q_OBJECT
  public:
    explicit RingPanel(QWidget* parent);

    void ShowFigures(const RingFigures& figures);
    /// Whether the ring's name can be edited.
    void SetEditable(bool editable);

  Q_SIGNALS:
    void EditClicked();

  private:
    QLabel* lblPlemenaCnt;
    QLabel* lblPlemenaCntPrc;
    QLabel* lblDogsCnt;
    QLabel* lblDogsCntPrc;
    LinkLabel* lblEditKruh;
};

} // namespace lorvo
