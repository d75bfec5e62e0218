#pragma once
// The panel of a class: how many dogs of the breed stand in it.

#include <QWidget>

class QLabel;

namespace lorvo {

class ClassPanel : public QWidget {
    Q_OBJECT
  public:
    explicit ClassPanel(QWidget* parent);

    void ShowDogCount(const QString& count);

  private:
    QLabel* lblClassDogCount;
};

} // namespace lorvo
