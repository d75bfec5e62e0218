#include "show/show_generator.h"

#include "show/show_parts.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/plemena.h"
#include "store/psi.h"

#include <map>

namespace lorvo::show {

void NumberEnteredDogs(Numbers numbers) {
    if (numbers == Numbers::None)
        return;
    std::map<int, std::vector<int>> dogs;
    for (const TreeDog& dog : TreeDogsByBreed())
        dogs[dog.PlemenoID].push_back(dog.ID);
    const std::vector<Plemena> breeds = BreedsByRing();
    std::vector<int> order;
    for (const Kruhy& ring : RingsByName())
        for (const Plemena& breed : breeds)
            if (breed.ID_Kruhu == ring.ID)
                order.insert(order.end(), dogs[breed.ID].begin(), dogs[breed.ID].end());
    if (numbers == Numbers::Some)
        order.resize(order.size() * 2 / 3);
    int cislo = 0;
    for (const int psiID : order)
        SetDogNumber(psiID, ++cislo);
}

void GenerateShow(const ShowSize& size, std::uint64_t seed, Numbers numbers) {
    Dice dice(seed);
    EditRun run(TheDataModule().Conn1);
    const ShowSetUp setUp = SettleShow(size, dice);
    const std::vector<EnteredOwner> owners = EnterOwners(size, dice);
    const std::vector<EnteredDog> dogs = EnterDogs(size, setUp, owners, dice);
    TakePayments(size, setUp, owners, dogs, dice);
    NumberEnteredDogs(numbers);
    run.Finish();
}

} // namespace lorvo::show
