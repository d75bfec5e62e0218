#include "store/meny.h"

#include "store/data_module.h"
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

} // namespace

std::optional<Meny> CurrencyByID(int menaID) {
    return ReadFirst(Table(), "SELECT * FROM Meny WHERE ID = " + Number(menaID), ReadMeny);
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

void SetMainMark(int menaID, bool hlavni) {
    ChangeRow(Table(), "Meny", menaID, {{"Hlavni", hlavni}});
}

} // namespace lorvo
