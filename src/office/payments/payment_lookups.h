#pragma once
// What the windows of payments look up for each payment that they show or take.

#include "store/psi.h"

#include <QString>
#include <optional>
#include <unordered_map>

namespace lorvo {

/// The dog under work. StoreError when its row is gone.
Psi CurrentDog();

/// The word for a way of payment; null for a number that stands for none and for no number at all.
const QString* FindPaymentMode(std::optional<int> uhrada);
/// The same. StoreError where there is none.
const QString& PaymentModeText(std::optional<int> uhrada);

/// Zkratka of every currency, read at once.
class CurrencyAbbreviations {
  public:
    CurrencyAbbreviations();
    /// StoreError when there is no such currency.
    const QString& Of(int menaID) const;

  private:
    std::unordered_map<int, QString> abbreviations_;
};

} // namespace lorvo
