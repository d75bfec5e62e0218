#include "store/vystavy.h"

#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsVystavy;
}

Vystavy ReadVystavy(const RecordSet& row) {
    return {row.Field("ID").ToInt(), row.Field("Nazev").ToText(),
            ToOptionalDate(row.Field("Uzaverka1")), ToOptionalDate(row.Field("Uzaverka2"))};
}

} // namespace

std::optional<Vystavy> ShowByID(int vystavaID) {
    return ReadFirst(Table(), "SELECT * FROM Vystavy WHERE ID = " + Number(vystavaID), ReadVystavy);
}

std::vector<Vystavy> Shows() {
    return ReadRows(Table(), "SELECT * FROM Vystavy", ReadVystavy);
}

int CountShows() {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Vystavy");
}

int CountShowsNamed(const QString& nazev) {
    return CountNamed(Table(), "Vystavy", nazev);
}

int InsertShow(const QString& nazev) {
    return InsertRow(Table(), "Vystavy", {{"Nazev", nazev}});
}

void RenameShow(int vystavaID, const QString& nazev) {
    ChangeRow(Table(), "Vystavy", vystavaID, {{"Nazev", nazev}});
}

void SetClosingsOfFirstShow(DateValue uzaverka1, DateValue uzaverka2) {
    if (CountShows() == 0)
        return;
    ChangeFirstRow(Table(), "Vystavy", {{"Uzaverka1", uzaverka1}, {"Uzaverka2", uzaverka2}});
}

void DeleteShow(int vystavaID) {
    DeleteRows(Table(), "Vystavy", "ID", vystavaID);
}

void DeleteShowsButOldest() {
    const Value oldest = ReadScalar(Table(), "SELECT MIN(ID) FROM Vystavy");
    Table().Open("DELETE * FROM Vystavy WHERE ID > " + Number(oldest.ToInt()));
}

} // namespace lorvo
