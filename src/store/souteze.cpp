#include "store/souteze.h"

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
    if (row.IsNumeric("Cena"))
        competition.Cena = row.Field("Cena").ToCurrency();
    competition.Parova = row.Field("Parova").ToBool();
    competition.NazevPar1 = row.Field("NazevPar1").ToText();
    competition.NazevPar2 = row.Field("NazevPar2").ToText();
    return competition;
}

Assignments Fields(const Souteze& competition) {
    return {
        {"Nazev", competition.Nazev},
        {"NazevPar1", competition.NazevPar1},
        {"NazevPar2", competition.NazevPar2},
        {"Parova", competition.Parova},
        {"Cena", FromOptional(competition.Cena)},
    };
}

} // namespace

std::optional<Souteze> CompetitionByID(int soutezID) {
    return ReadFirst(Table(), "SELECT * FROM Souteze WHERE ID = " + Number(soutezID), ReadSouteze);
}

Souteze ExistingCompetition(int soutezID) {
    return Existing(CompetitionByID(soutezID), "Souteze", soutezID);
}

std::vector<Souteze> CompetitionsByName() {
    return ReadRows(Table(), "SELECT * FROM Souteze ORDER BY Nazev ASC", ReadSouteze);
}

std::vector<Souteze> Competitions() {
    return ReadRows(Table(), "SELECT * FROM Souteze", ReadSouteze);
}

bool IsCompetitionNamed(const QString& nazev, int exceptID) {
    return ReadFirst(Table(),
                     "SELECT * FROM Souteze WHERE LCASE(Nazev) = " + Quoted(nazev.toLower()) +
                         " AND ID <>" + Number(exceptID),
                     ReadSouteze)
        .has_value();
}

int InsertCompetition(const Souteze& competition) {
    return InsertRow(Table(), "Souteze", Fields(competition));
}

void UpdateCompetition(const Souteze& competition) {
    ChangeRow(Table(), "Souteze", competition.ID, Fields(competition));
}

void RenameCompetition(int soutezID, const QString& nazev) {
    ChangeRow(Table(), "Souteze", soutezID, {{"Nazev", nazev}});
}

void DeleteCompetition(int soutezID) {
    DeleteRows(Table(), "Souteze", "ID", soutezID);
}

void DeleteAllCompetitions() {
    DeleteAllRows(Table(), "Souteze");
}

} // namespace lorvo
