#pragma once
// Combo boxes that offer what was entered before and take any text.

#include <QComboBox>
#include <vector>

class QCompleter;
class QStringListModel;

namespace lorvo {

/// What is typed stays as it is. The key Down offers the stored texts that begin with it, whatever
/// their letter case; where there are none it steps through the list, as in any box.
class StoredTextsCombo : public QComboBox {
    Q_OBJECT
  public:
    StoredTextsCombo(const QString& name, QWidget* parent);

    /// Gives the box its list, the empty text left out; what stands in the box stays.
    void SetTexts(const std::vector<QString>& texts);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool Offer();

    QStringListModel* texts_;
    QCompleter* offer_;
};

} // namespace lorvo
