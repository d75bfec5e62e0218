#pragma once
// The classes of the dog editor, of which the dog's age leaves some to choose from.

#include "office/dogs/class_eligibility.h"

#include <QGroupBox>
#include <array>

class QButtonGroup;
class QLabel;
class QRadioButton;

namespace lorvo {

class DogClassBox : public QGroupBox {
    Q_OBJECT
  public:
    DogClassBox(ClassList list, QWidget* parent);

    /// Names the buttons by the class list and hides the rest.
    void NameClasses();
    /// Chooses the class of that code; a code without a button chooses none.
    void Choose(int trida);
    /// Code of the chosen class, from 1; 0 when none is.
    int Chosen() const;
    /// Opens the classes that a dog born then may be shown in on the show's day, drops the choice
    /// of a closed one and renews the caption. A store that fails counts as a show without a date.
    /// A dropped choice comes back when a later date opens its class again and none is chosen.
    void UpdateClassButtons(DateValue born);
    /// The date stands: what has been dropped until now stays so.
    void SettleChoice() { dropped_ = 0; }

  Q_SIGNALS:
    void Clicked();

  private:
    void Drop(QRadioButton* button);

    ClassList list_;
    QLabel* Label8;
    std::array<QRadioButton*, 10> optClasses;
    QButtonGroup* choice_;
    int dropped_ = 0; ///< class that a date on the way has closed; 0 for none
};

} // namespace lorvo
