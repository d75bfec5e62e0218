#pragma once
// A text box that offers texts used before.

#include <QLineEdit>
#include <vector>

class QStringListModel;

namespace lorvo {

/// What fits the typed letters is offered below the box; any other text may be typed as well.
class AutoCompleteBox : public QLineEdit {
    Q_OBJECT
  public:
    explicit AutoCompleteBox(QWidget* parent);

    void ClearSuggestions();
    /// Repetitions are kept.
    void AddSuggestions(const std::vector<QString>& texts);

  Q_SIGNALS:
    void FocusEntered();
    /// The keyboard went to another control; the list of suggestions is no other one.
    void FocusLeft();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    QStringListModel* suggestions_;
};

} // namespace lorvo
