#pragma once
// Builders of controls and layouts that several windows share.

#include "platform/values/date_text.h"

#include <QDateEdit>
#include <QFormLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

class QComboBox;

namespace lorvo {

/// Gives a control its name: objectName as the window's code knows it.
template<typename T> T* Named(T* control, const QString& name) {
    control->setObjectName(name);
    return control;
}
/// The name of an element of a control array: "txtbox(7)".
QString ElementName(const char* array, int index);

/// A caption whose buddy is the field; its text is the field's accessible name.
QLabel* CaptionFor(QWidget* field, const QString& caption, QWidget* parent);
/// A label that shows a value. Without a name of its own it is found by its caption, which becomes
/// its accessible name.
QLabel* ValueLabel(const QString& accessibleName, QWidget* parent);

/// A text that acts on a click and is underlined while the mouse is over it. It can be reached and
/// triggered by keyboard too.
class LinkLabel : public QLabel {
    Q_OBJECT
  public:
    explicit LinkLabel(const QString& text, QWidget* parent);

    /// Asks for that many pixels where the text needs less.
    void SetReach(int width);
    QSize sizeHint() const override;

  Q_SIGNALS:
    void Clicked(Qt::MouseButton button);

  protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Underline(bool on);

    int reach_ = 0;
};

/// Makes the box refuse typed non-digits; text pasted in is not filtered.
void SetNumberStyle(QLineEdit& box);

/// A date picker with a calendar: range 1.1.1601 to 31.12.9999, the system's short date. `window`
/// tells the century of a year that is typed in two digits.
QDateEdit* DatePicker(const QString& name, QWidget* parent, YearWindow window = YearWindow::Around);
DateValue PickedDate(const QDateEdit& picker);
void SetPickedDate(QDateEdit& picker, DateValue value);

/// Lets a combo box open at once however long its list is: neither the box nor the list asks every
/// line for its size.
void PrepareForLongList(QComboBox& combo);

/// A row of buttons, in the order given, at the right end of a window; the first is the default.
QLayout* ButtonRow(std::initializer_list<QPushButton*> buttons);

/// An icon of the program's family by the name of its picture ("ring", "dog", "sort-up"): crisp at
/// any scale, readable on a dark palette too. A null icon for a name without a picture.
QIcon ProgramIcon(const QString& name);

} // namespace lorvo
