#pragma once
// The page that looks through the whole database and says in words what it found.

#include <QWidget>

class QPlainTextEdit;
class QPushButton;

namespace lorvo {

class CheckPage : public QWidget {
    Q_OBJECT
  public:
    explicit CheckPage(QWidget* parent);

    QPushButton* cmdCheck;
    QPlainTextEdit* txtNalez;

  private:
    void Check();
};

} // namespace lorvo
