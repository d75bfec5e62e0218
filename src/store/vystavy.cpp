#include "store/vystavy.h"

#include "platform/values/errors.h"
#include "store/data_module.h"
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

std::string FeeColumn(bool firstClosing, int classColumn, bool firstDog) {
    return std::string("Poplatky") + (firstClosing ? "I" : "II") + "Class" +
           std::to_string(classColumn) + "D" + (firstDog ? "1" : "2");
}

std::optional<Vystavy> ShowByID(int vystavaID) {
    return ReadFirst(Table(), "SELECT * FROM Vystavy WHERE ID = " + Number(vystavaID), ReadVystavy);
}

std::vector<Vystavy> Shows() {
    return ReadRows(Table(), "SELECT * FROM Vystavy", ReadVystavy);
}

int CountShows() {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Vystavy");
}

std::optional<Currency> FindShowFee(int vystavaID, const std::string& column) {
    return ToOptionalCurrency(
        ReadScalar(Table(), "SELECT " + column + " FROM Vystavy WHERE ID= " + Number(vystavaID)));
}

Currency ShowFee(int vystavaID, const std::string& column) {
    if (const auto fee = FindShowFee(vystavaID, column))
        return *fee;
    throw StoreError("Vystavy: " + column + " is Null in the row with ID " + Number(vystavaID));
}

int InsertShow(const QString& nazev) {
    return InsertRow(Table(), "Vystavy", {{"Nazev", nazev}});
}

} // namespace lorvo
