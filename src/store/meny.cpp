#include "store/meny.h"

#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsMeny;
}

Meny ReadMeny(const RecordSet& row) {
    Meny currency;
    currency.ID = row.Field("ID").ToInt();
    currency.Nazev = row.Field("Nazev").ToText();
    currency.Zkratka = row.Field("Zkratka").ToText();
    currency.Kurs = row.Field("Kurs").ToCurrency();
    currency.Hlavni = row.Field("Hlavni").ToBool();
    return currency;
}

Assignments Fields(const Meny& currency) {
    return {
        {"Nazev", currency.Nazev},
        {"Zkratka", currency.Zkratka},
        {"Kurs", currency.Kurs},
        {"Hlavni", currency.Hlavni},
    };
}

} // namespace

std::optional<Meny> CurrencyByID(int menaID) {
    return ReadFirst(Table(), "SELECT * FROM Meny WHERE ID = " + Number(menaID), ReadMeny);
}

Meny ExistingCurrency(int menaID) {
    return Existing(CurrencyByID(menaID), "Meny", menaID);
}

std::vector<Meny> Currencies() {
    return ReadRows(Table(), "SELECT * FROM Meny", ReadMeny);
}

std::vector<Meny> MainCurrencies() {
    return ReadRows(Table(), "SELECT * FROM Meny WHERE Hlavni = true", ReadMeny);
}

std::vector<Meny> CurrenciesAbbreviated(const QString& zkratka) {
    return ReadRows(Table(), "SELECT * FROM Meny WHERE Zkratka = " + Quoted(zkratka), ReadMeny);
}

int CountCurrencies() {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Meny");
}

int InsertCurrency(const Meny& currency) {
    return InsertRow(Table(), "Meny", Fields(currency));
}

void UpdateCurrency(const Meny& currency) {
    ChangeRow(Table(), "Meny", currency.ID, Fields(currency));
}

void DeleteCurrency(int menaID) {
    DeleteRows(Table(), "Meny", "ID", menaID);
}

void DeleteAllCurrencies() {
    DeleteAllRows(Table(), "Meny");
}

void SetMainMark(int menaID, bool hlavni) {
    ChangeRow(Table(), "Meny", menaID, {{"Hlavni", hlavni}});
}

void ClearMainMarkExceptNamed(const QString& nazev) {
    ChangeRows(Table(), "SELECT * FROM Meny WHERE Nazev <> " + Quoted(nazev), {{"Hlavni", false}});
}

} // namespace lorvo
