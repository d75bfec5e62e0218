#pragma once
// The page of the settings that keeps the currencies.

#include <QWidget>

namespace lorvo {

class CommandCollection;
class ReportList;

class CurrencyList : public QWidget {
    Q_OBJECT
  public:
    explicit CurrencyList(QWidget* parent);

    /// Reads the list anew: the main currency bold, the rate's heading in the main currency.
    void Refill();

  private:
    void CarryOut(const QString& command);
    /// With the rows as the editor leaves them: all bold or none, until the list is read anew.
    void RefillAfterEditor(bool bold);
    void Edit(int currencyID);
    void EditSelected();
    void DeleteByCommand();
    void DeleteByKey();
    void DeleteRow(int position);
    QString DeleteQuestion(int position) const;
    int SelectedID() const; ///< 0 when no row is selected

    CommandCollection* commands_;
    ReportList* lvwCurrencies;
};

} // namespace lorvo
