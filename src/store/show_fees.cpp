// The fee tables of the shows.

#include "platform/values/errors.h"
#include "store/rows.h"
#include "store/vystavy.h"

#include <algorithm>

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsVystavy;
}

std::array<std::string, kFeeColumns> MakeFeeColumns() {
    std::array<std::string, kFeeColumns> columns;
    auto column = columns.begin();
    for (const bool firstClosing : {true, false}) {
        for (int classColumn = 1; classColumn <= kFeeClasses; ++classColumn) {
            for (const bool firstDog : {true, false})
                *column++ = FeeColumn(firstClosing, classColumn, firstDog);
        }
    }
    return columns;
}

FeeRow ReadFees(const RecordSet& row) {
    FeeRow fees;
    std::transform(FeeColumns().begin(), FeeColumns().end(), fees.begin(),
                   [&row](const auto& column) { return ToOptionalCurrency(row.Field(column)); });
    return fees;
}

Currency NotNull(const std::optional<Currency>& fee, int vystavaID, const std::string& column) {
    if (fee)
        return *fee;
    throw StoreError("Tabulka Vystavy: pole " + column + " není u výstavy s ID " +
                     Number(vystavaID) + " vyplněno.");
}

StoreError NoSuchShow(int vystavaID) {
    return StoreError("Tabulka Vystavy: výstava s ID " + Number(vystavaID) + " neexistuje.");
}

} // namespace

std::string FeeColumn(bool firstClosing, int classColumn, bool firstDog) {
    return std::string("Poplatky") + (firstClosing ? "I" : "II") + "Class" +
           std::to_string(classColumn) + "D" + (firstDog ? "1" : "2");
}

const std::array<std::string, kFeeColumns>& FeeColumns() {
    static const std::array<std::string, kFeeColumns> columns = MakeFeeColumns();
    return columns;
}

std::optional<Currency> FindShowFee(int vystavaID, const std::string& column) {
    return ToOptionalCurrency(
        ReadScalar(Table(), "SELECT " + column + " FROM Vystavy WHERE ID= " + Number(vystavaID)));
}

Currency ShowFee(int vystavaID, const std::string& column) {
    return NotNull(FindShowFee(vystavaID, column), vystavaID, column);
}

FeeRow ShowFees(int vystavaID) {
    const auto fees =
        ReadFirst(Table(), "SELECT * FROM Vystavy WHERE ID=" + Number(vystavaID), ReadFees);
    if (!fees)
        throw NoSuchShow(vystavaID);
    return *fees;
}

FeeTables::FeeTables() {
    Table().Open("SELECT * FROM Vystavy");
    for (; !Table().Eof(); Table().MoveNext())
        shows_[Table().Field("ID").ToInt()] = {Table().Field("Nazev").ToText(), ReadFees(Table())};
    Table().Close();
}

Currency FeeTables::Fee(int vystavaID, bool firstClosing, int classColumn, bool firstDog) const {
    if (classColumn < 1 || classColumn > kFeeClasses)
        throw StoreError("Tabulka Vystavy: neznámé pole " +
                         FeeColumn(firstClosing, classColumn, firstDog) + '.');
    const int index = ((firstClosing ? 0 : kFeeClasses) + classColumn - 1) * 2 + (firstDog ? 0 : 1);
    return NotNull(At(vystavaID).fees[static_cast<std::size_t>(index)], vystavaID,
                   FeeColumns()[static_cast<std::size_t>(index)]);
}

const QString& FeeTables::ShowName(int vystavaID) const {
    return At(vystavaID).Nazev;
}

const FeeTables::Show& FeeTables::At(int vystavaID) const {
    const auto show = shows_.find(vystavaID);
    if (show == shows_.end())
        throw NoSuchShow(vystavaID);
    return show->second;
}

void UpdateShow(int vystavaID, const QString& nazev,
                const std::array<Currency, kFeeColumns>& fees) {
    Assignments fields = {{"Nazev", nazev}};
    for (std::size_t i = 0; i < fees.size(); ++i)
        fields.emplace_back(FeeColumns()[i].c_str(), fees[i]);
    ChangeRow(Table(), "Vystavy", vystavaID, fields);
}

// kept: clearing-fees-of-first-show
void ClearFeesOfFirstShow() {
    Assignments fields;
    for (const std::string& column : FeeColumns())
        fields.emplace_back(column.c_str(), Currency());
    ChangeFirstRow(Table(), "Vystavy", fields);
}

} // namespace lorvo
