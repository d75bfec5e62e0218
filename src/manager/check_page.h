#pragma once
// The page that looks through the whole database and says in words what it found.

#include "manager/show_access.h"

#include <QWidget>

class QPlainTextEdit;
class QPushButton;

namespace lorvo {

class CheckPage : public QWidget {
    Q_OBJECT
  public:
    CheckPage(const ShowAccess& show, QWidget* parent);

    QPushButton* cmdCheck;
    QPlainTextEdit* txtNalez;

  private:
    void Check();

    const ShowAccess show_;
};

} // namespace lorvo
