#pragma once
// The status bar of a list: how many it holds, and what they owe and have paid.

#include <QStatusBar>
#include <array>

class QLabel;

namespace lorvo {

class TotalsBar : public QStatusBar {
    Q_OBJECT
  public:
    TotalsBar(const char* name, QWidget* parent);
    /// Panels count from 1: the count, the totals.
    void SetPanel(int number, const QString& text);

  private:
    std::array<QLabel*, 2> panels_;
};

} // namespace lorvo
