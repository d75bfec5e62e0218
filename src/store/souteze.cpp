#include "store/souteze.h"

#include "store/data_module.h"
#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsSouteze;
}

Souteze ReadSouteze(const RecordSet& row) {
    Souteze competition;
    competition.ID = row.Field("ID").ToInt();
    competition.Nazev = row.Field("Nazev").ToText();
    competition.Cena = ToOptionalCurrency(row.Field("Cena"));
    competition.Parova = row.Field("Parova").ToBool();
    competition.NazevPar1 = row.Field("NazevPar1").ToText();
    competition.NazevPar2 = row.Field("NazevPar2").ToText();
    return competition;
}

} // namespace

std::optional<Souteze> CompetitionByID(int soutezID) {
    return ReadFirst(Table(), "SELECT * FROM Souteze WHERE ID = " + Number(soutezID), ReadSouteze);
}

std::vector<Souteze> CompetitionsByName() {
    return ReadRows(Table(), "SELECT * FROM Souteze ORDER BY Nazev ASC", ReadSouteze);
}

} // namespace lorvo
