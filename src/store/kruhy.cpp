#include "store/kruhy.h"

#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsKruhy;
}

Kruhy ReadKruhy(const RecordSet& row) {
    return {row.Field("ID").ToInt(), row.Field("Nazev").ToText(),
            row.Field("JmenoRozhodciho").ToText()};
}

} // namespace

std::optional<Kruhy> RingByID(int kruhID) {
    return ReadFirst(Table(), "SELECT * FROM Kruhy WHERE ID = " + Number(kruhID), ReadKruhy);
}

std::vector<Kruhy> Rings() {
    return ReadRows(Table(), "SELECT * FROM Kruhy", ReadKruhy);
}

std::vector<Kruhy> RingsByName() {
    return ReadRows(Table(), "SELECT * FROM Kruhy ORDER BY Nazev", ReadKruhy);
}

int InsertRing(const QString& nazev) {
    return InsertRow(Table(), "Kruhy", {{"Nazev", nazev}});
}

void RenameRing(int kruhID, const QString& nazev) {
    ChangeRow(Table(), "Kruhy", kruhID, {{"Nazev", nazev}});
}

void SetRingJudge(int kruhID, const QString& jmenoRozhodciho) {
    ChangeRow(Table(), "Kruhy", kruhID, {{"JmenoRozhodciho", jmenoRozhodciho}});
}

void DeleteRing(int kruhID) {
    DeleteRows(Table(), "Kruhy", "ID", kruhID);
}

void DeleteAllRings() {
    DeleteAllRows(Table(), "Kruhy");
}

} // namespace lorvo
