// Dogs as the tree shows them: the dogs of one breed by a statement, all at once by a plain pass
// that is put in the same order here. Names are compared only among dogs of one breed, sex and
// class, which takes a fraction of the time that a sort by keys of all names takes.

#include "store/czech_order.h"
#include "store/psi.h"
#include "store/rows.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace lorvo {

namespace {

constexpr const char* kTreeDogs = "SELECT PrvniPes, PrvniUzaverka, ID, Jmeno, Cislo, PlemenoID, "
                                  "PohlaviPes, Trida FROM Psi";

enum Column { kPrvniPes, kPrvniUzaverka, kID, kJmeno, kCislo, kPlemenoID, kPohlaviPes, kTrida };

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

/// A dog with what decides its place before its name does.
struct PlacedDog {
    TreeDog dog;
    std::tuple<int, int, int, bool> place;
};

/// A Null stands before every number.
int Place(const Query& row, Column column, int number) {
    return row.IsNull(column) ? std::numeric_limits<int>::min() : number;
}

PlacedDog ReadPlacedDog(const Query& row) {
    TreeDog dog = ReadTreeDog(row);
    const std::tuple place(Place(row, kPlemenoID, dog.PlemenoID),
                           dog.PohlaviPes ? -1 : 0, // a Null reads as false here too
                           Place(row, kTrida, dog.Trida), !row.IsNull(kJmeno));
    return {std::move(dog), place};
}

bool Precedes(const PlacedDog& left, const PlacedDog& right) {
    if (left.place != right.place)
        return left.place < right.place;
    if (const int order = CompareCzech(left.dog.Jmeno, right.dog.Jmeno))
        return order < 0;
    return left.dog.ID < right.dog.ID;
}

} // namespace

std::vector<TreeDog> TreeDogsOfBreed(int plemenoID) {
    return ReadMany(std::string(kTreeDogs) + " WHERE Psi!PlemenoID = " + Number(plemenoID) +
                        " ORDER BY PohlaviPes ASC, Trida ASC, Jmeno ASC",
                    ReadTreeDog);
}

std::vector<TreeDog> TreeDogsByBreed() {
    std::vector<PlacedDog> placed = ReadMany(kTreeDogs, ReadPlacedDog);
    std::ranges::sort(placed, Precedes);
    std::vector<TreeDog> dogs;
    dogs.reserve(placed.size());
    for (PlacedDog& dog : placed)
        dogs.push_back(std::move(dog.dog));
    return dogs;
}

} // namespace lorvo
