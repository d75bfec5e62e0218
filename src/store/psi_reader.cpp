#include "store/psi_reader.h"

#include "store/placed_rows.h"
#include "store/rows.h"

namespace lorvo {

namespace {

constexpr const char* kFields =
    "ID, Jmeno, ChovnaStanice, Cislo, PlemenoID, MajitelID, BarvaID, PohlaviPes, DatumNar, Trida, "
    "Otec, Matka, PK, Poznamka, Chovatel, PrvniUzaverka, PrvniPes";

/// Where kFields has what a dog's place in its breed hangs on.
constexpr BreedPlace::Columns kPlaceColumns{
    .plemenoID = 4, .pohlaviPes = 7, .trida = 9, .jmeno = 1};

/// The fields in the order of kFields.
Psi ReadPsi(const Query& row) {
    Psi dog;
    int column = 0;
    dog.ID = row.Int(column++);
    dog.Jmeno = row.Text(column++);
    dog.ChovnaStanice = row.Text(column++);
    dog.Cislo = IntOrNull(row, column++);
    dog.PlemenoID = row.Int(column++);
    dog.MajitelID = row.Int(column++);
    dog.BarvaID = row.Int(column++);
    dog.PohlaviPes = row.Bool(column++);
    dog.DatumNar = DateOrNull(row, column++);
    dog.Trida = row.Int(column++);
    dog.Otec = row.Text(column++);
    dog.Matka = row.Text(column++);
    dog.PK = row.Text(column++);
    dog.Poznamka = row.Text(column++);
    dog.Chovatel = row.Text(column++);
    dog.PrvniUzaverka = row.Bool(column++);
    dog.PrvniPes = row.Bool(column++);
    return dog;
}

} // namespace

std::vector<Psi> ReadDogs(const std::string& rest, const std::string& top) {
    return ReadMany("SELECT " + top + kFields + " FROM Psi " + rest, ReadPsi);
}

std::vector<Psi> DogsByBreed() {
    std::vector<Psi> dogs;
    std::vector<BreedPlace> places;
    const std::size_t count = RowsIn("Psi");
    dogs.reserve(count);
    places.reserve(count);
    for (Query rows(TheDataModule().Conn1, std::string("SELECT ") + kFields + " FROM Psi");
         rows.Next();) {
        dogs.push_back(ReadPsi(rows));
        places.emplace_back(rows, kPlaceColumns, dogs.back().Jmeno);
    }
    return InOrder(std::move(dogs), places);
}

} // namespace lorvo
