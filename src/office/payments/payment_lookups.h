#pragma once
// What the windows of payments look up for each payment that they show or take.

#include "store/psi.h"

#include <QString>
#include <unordered_map>

namespace lorvo {

/// The dog under work. StoreError when its row is gone.
Psi CurrentDog();

/// The word for a way of payment. StoreError for a number that stands for none.
const QString& PaymentModeText(int uhrada);

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
