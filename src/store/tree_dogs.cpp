// Dogs as the tree shows them: the dogs of one breed by a statement, all at once by a plain pass
// that is put in the same order here.

#include "store/placed_rows.h"
#include "store/psi.h"
#include "store/rows.h"

namespace lorvo {

namespace {

constexpr const char* kTreeDogs = "SELECT PrvniPes, PrvniUzaverka, ID, Jmeno, Cislo, PlemenoID, "
                                  "PohlaviPes, Trida FROM Psi";

enum Column { kPrvniPes, kPrvniUzaverka, kID, kJmeno, kCislo, kPlemenoID, kPohlaviPes, kTrida };
constexpr BreedPlace::Columns kPlaceColumns{kPlemenoID, kPohlaviPes, kTrida, kJmeno};

TreeDog ReadTreeDog(const Query& row) {
    TreeDog dog;
    dog.PrvniPes = row.Bool(kPrvniPes);
    dog.PrvniUzaverka = row.Bool(kPrvniUzaverka);
    dog.ID = row.Int(kID);
    dog.Jmeno = row.Text(kJmeno);
    dog.Cislo = row.Int(kCislo);
    dog.PlemenoID = row.Int(kPlemenoID);
    dog.PohlaviPes = row.Bool(kPohlaviPes);
    dog.Trida = row.Int(kTrida);
    return dog;
}

} // namespace

std::vector<TreeDog> TreeDogsByBreed() {
    std::vector<TreeDog> dogs;
    std::vector<BreedPlace> places;
    for (Query rows(TheDataModule().Conn1, kTreeDogs); rows.Next();) {
        dogs.push_back(ReadTreeDog(rows));
        places.emplace_back(rows, kPlaceColumns, dogs.back().Jmeno);
    }
    return InOrder(std::move(dogs), places);
}

} // namespace lorvo
