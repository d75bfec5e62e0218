// The dogs of the dog list: three plain passes joined and put in order here; owners and breeds
// share one text among their dogs.

#include "store/majitele.h"
#include "store/placed_rows.h"
#include "store/psi_lists.h"
#include "store/rows.h"

namespace lorvo {

namespace {

struct BreedNames {
    QString Nazev;
    QString NazevOrig;
};

constexpr int kJmeno = 4;

DogListRow ReadDog(const Query& row) {
    DogListRow dog;
    dog.PohlaviPes = row.Bool(0);
    dog.PrvniPes = row.Bool(1);
    dog.PrvniUzaverka = row.Bool(2);
    dog.IDPsa = row.Int(3);
    dog.Jmeno = row.Text(kJmeno);
    dog.ChovnaStanice = row.Text(5);
    dog.Trida = row.Int(6);
    dog.PlemenoID = row.Int(7);
    dog.MajitelID = row.Int(8);
    dog.Poznamka = row.Text(9);
    return dog;
}

std::unordered_map<int, BreedNames> NamesOfBreeds() {
    std::unordered_map<int, BreedNames> names;
    Query query(TheDataModule().Conn1, "SELECT ID, Nazev, NazevOrig FROM Plemena");
    while (query.Next())
        names.emplace(query.Int(0), BreedNames{query.Text(1), query.Text(2)});
    return names;
}

} // namespace

std::vector<DogListRow> DogsWithOwnersByName() {
    const std::unordered_map<int, QString> owners = OwnerNames();
    const std::unordered_map<int, BreedNames> breeds = NamesOfBreeds();
    std::vector<DogListRow> dogs;
    std::vector<NamePlace> places;
    const std::size_t count = RowsIn("Psi");
    dogs.reserve(count);
    places.reserve(count);
    Query rows(TheDataModule().Conn1,
               "SELECT PohlaviPes, PrvniPes, PrvniUzaverka, ID, Jmeno, ChovnaStanice, Trida, "
               "PlemenoID, MajitelID, Poznamka FROM Psi");
    while (rows.Next()) {
        DogListRow dog = ReadDog(rows);
        const auto owner = owners.find(dog.MajitelID);
        const auto breed = breeds.find(dog.PlemenoID);
        if (owner == owners.end() || breed == breeds.end())
            continue;
        dog.JmenoMajitele = owner->second;
        dog.NazevPlemene = breed->second.Nazev;
        dog.NazevOrig = breed->second.NazevOrig;
        places.emplace_back(rows, kJmeno, dog.Jmeno);
        dogs.push_back(std::move(dog));
    }
    return InOrder(std::move(dogs), places);
}

} // namespace lorvo
