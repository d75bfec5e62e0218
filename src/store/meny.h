#pragma once
// Meny: the currencies. Every routine raises StoreError when the store refuses.

#include "platform/values/money.h"

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// Null texts read as empty, a Null Kurs as 0, a Null Hlavni as false.
struct Meny {
    int ID = 0;
    QString Nazev;
    QString Zkratka;
    Currency Kurs; ///< units of the main currency for one unit of this one
    bool Hlavni = false;
};

[[nodiscard]] std::optional<Meny> CurrencyByID(int menaID);
/// The same; StoreError when the currency is gone.
Meny ExistingCurrency(int menaID);
/// All currencies in ID order.
std::vector<Meny> Currencies();
/// Currencies marked as the main one, in ID order; meant to be one.
std::vector<Meny> MainCurrencies();
/// Currencies with exactly this abbreviation, in ID order.
std::vector<Meny> CurrenciesAbbreviated(const QString& zkratka);
int CountCurrencies();

/// Stores a new currency and returns its ID; currency.ID is not looked at.
int InsertCurrency(const Meny& currency);
/// Writes all fields into the row currency.ID. StoreError when it is gone.
void UpdateCurrency(const Meny& currency);
void DeleteCurrency(int menaID);
void DeleteAllCurrencies();
void SetMainMark(int menaID, bool hlavni);
/// Takes the main mark from every currency whose Nazev is another text.
void ClearMainMarkExceptNamed(const QString& nazev);

} // namespace lorvo
