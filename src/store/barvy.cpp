#include "store/barvy.h"

#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsBarvy;
}

Barvy ReadBarvy(const RecordSet& row) {
    return {row.Field("ID").ToInt(), row.Field("Nazev").ToText()};
}

} // namespace

std::optional<Barvy> ColourByID(int barvaID) {
    return ReadFirst(Table(), "SELECT * FROM Barvy WHERE ID = " + Number(barvaID), ReadBarvy);
}

std::vector<Barvy> Colours() {
    return ReadRows(Table(), "SELECT * FROM Barvy", ReadBarvy);
}

int CountColoursNamed(const QString& nazev) {
    return CountNamed(Table(), "Barvy", nazev);
}

int InsertColour(const QString& nazev) {
    return InsertRow(Table(), "Barvy", {{"Nazev", nazev}});
}

void RenameColour(int barvaID, const QString& nazev) {
    ChangeRow(Table(), "Barvy", barvaID, {{"Nazev", nazev}});
}

void DeleteColour(int barvaID) {
    DeleteRows(Table(), "Barvy", "ID", barvaID);
}

void DeleteAllColours() {
    DeleteAllRows(Table(), "Barvy");
}

} // namespace lorvo
