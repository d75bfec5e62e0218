#pragma once
// The page that takes people's data out after the show.

#include <QWidget>

class QLabel;
class QPushButton;

namespace lorvo {

class PeoplePage : public QWidget {
    Q_OBJECT
  public:
    explicit PeoplePage(QWidget* parent);

    QPushButton* cmdPreview;
    QPushButton* cmdRemove; ///< greyed until the preview has been seen
    QLabel* lblNahled;

  private:
    void Preview();
    void Remove();
};

} // namespace lorvo
