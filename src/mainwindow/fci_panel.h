#pragma once
// The panel of an FCI group: how many breeds and dogs belong to it.

#include "office/cards/node_figures.h"

#include <QWidget>

class QLabel;

namespace lorvo {

class FciPanel : public QWidget {
    Q_OBJECT
  public:
    explicit FciPanel(QWidget* parent);

    void ShowFigures(const FciFigures& figures);

  private:
    QLabel* lblPlemenaInFCICount;
    QLabel* lblDogsInFCICount;
};

} // namespace lorvo
