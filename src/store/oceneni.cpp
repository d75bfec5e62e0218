#include "store/oceneni.h"

#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsOceneni;
}

Oceneni ReadOceneni(const RecordSet& row) {
    return {row.Field("ID").ToInt(), row.Field("Nazev").ToText()};
}

} // namespace

std::vector<Oceneni> Awards() {
    return ReadRows(Table(), "SELECT * FROM Oceneni", ReadOceneni);
}

std::vector<Oceneni> AwardsByName() {
    return ReadRows(Table(), "SELECT * FROM Oceneni ORDER BY Nazev ASC", ReadOceneni);
}

int InsertAward(const QString& nazev) {
    return InsertRow(Table(), "Oceneni", {{"Nazev", nazev}});
}

void RenameAward(int oceneniID, const QString& nazev) {
    ChangeRow(Table(), "Oceneni", oceneniID, {{"Nazev", nazev}});
}

void DeleteAllAwards() {
    DeleteAllRows(Table(), "Oceneni");
}

} // namespace lorvo
