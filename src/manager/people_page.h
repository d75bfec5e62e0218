#pragma once
// The page that takes people's data out after the show.

#include "manager/show_access.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace lorvo {

class PeoplePage : public QWidget {
    Q_OBJECT
  public:
    PeoplePage(const ShowAccess& show, QWidget* parent);

    QPushButton* cmdPreview;
    QPushButton* cmdRemove; ///< greyed until the preview has been seen
    QLabel* lblNahled;

  private:
    void Preview();
    void Remove();

    const ShowAccess show_;
};

} // namespace lorvo
