#pragma once
// The panel of a breed: how many dogs it has, their share of all, and its FCI group.

#include "office/cards/node_figures.h"

#include <QWidget>

class QLabel;

namespace lorvo {

class BreedPanel : public QWidget {
    Q_OBJECT
  public:
    explicit BreedPanel(QWidget* parent);

    void ShowFigures(const BreedFigures& figures);

  private:
    QLabel* lblDogsCount;
    QLabel* lblDogsCountPrc;
    QLabel* lblFCIplemene;
};

} // namespace lorvo
