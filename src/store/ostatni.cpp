#include "store/ostatni.h"

#include "store/rows.h"

namespace lorvo {

namespace {

constexpr const char* kAll = "SELECT * FROM Ostatni";

RecordSet& Table() {
    return TheDataModule().rsOstatni;
}

} // namespace

std::optional<Ostatni> ShowWideValues() {
    return ReadFirst(Table(), kAll, [](const RecordSet& row) {
        return Ostatni{ToOptionalDate(row.Field("DatumVystavy"))};
    });
}

void InsertEmptyShowWideValues() {
    Table().Open(kAll);
    Table().AddNew();
    Table().Update();
    Table().Close();
}

void SetShowDate(DateValue datumVystavy) {
    Table().Open(kAll);
    if (Table().Eof())
        Table().AddNew();
    Table().Set("DatumVystavy", datumVystavy);
    Table().Update();
    Table().Close();
}

void ClearShowDate() {
    ChangeFirstRow(Table(), "Ostatni", {{"DatumVystavy", DateValue()}});
}

} // namespace lorvo
