#pragma once
// A drop-down list that is searched by typing whole names.

#include <QComboBox>
#include <QElapsedTimer>

namespace lorvo {

/// A blank typed within a name ("Jan Novák") goes on searching; one that begins nothing drops the
/// list down, as in any other list.
class TypeSearchCombo : public QComboBox {
    Q_OBJECT
  public:
    using QComboBox::QComboBox;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool IsSearching() const;
    void SearchOn(const QString& text);

    QElapsedTimer lastTyped_; ///< since the last letter of a name
};

} // namespace lorvo
