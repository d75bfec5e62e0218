#pragma once
// The payments of one dog, or of all dogs of one exhibitor.

#include "forms/form.h"
#include "forms/report_list.h"

#include <functional>

namespace lorvo {

class CurrencyAbbreviations;
struct Psi;
struct Uhrady;

/// The statement of the dog `Module().CurrentDogID`, or of the owner `Module().PaymentsOwner` when
/// that isn't 0. A dog that is picked for a new payment becomes the current one.
class frmUhrady : public Form {
    Q_OBJECT
  public:
    explicit frmUhrady(QWidget* parent);

    /// Reads the list anew. The statement of a dog raises StoreError when its row or a payment's
    /// currency is gone; that of an owner leaves out what it can't find.
    void Activated() override;

  protected:
    void Load() override;
    bool QueryUnload() override;

  private:
    bool IsOwnersStatement() const { return owner_ != 0; }
    void LayOut();
    void FillForDog();
    void FillForOwner();
    void InsertDogColumn();
    void RemoveDogColumn();
    void AddPaymentsOf(const Psi& dog, const CurrencyAbbreviations& currencies,
                       std::vector<ReportRow>& rows) const;
    ReportRow RowOf(const Uhrady& payment, const Psi& dog,
                    const CurrencyAbbreviations& currencies) const;
    void SetMainCurrencyHeading(const QString& currency);
    void TakePayment();
    void DeleteSelected();

    const int owner_; ///< 0 for the statement of a dog
    ReportList* lvwUhrady;
    bool hasDogColumn_ = false;
};

} // namespace lorvo
