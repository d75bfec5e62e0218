// Owners and their dogs.

#include "app/constant_tables.h"
#include "office/dogs/class_eligibility.h"
#include "show/show_names.h"
#include "show/show_parts.h"
#include "store/majitele.h"
#include "store/psi.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/vazby_souteze.h"

#include <algorithm>
#include <array>

namespace lorvo::show {

namespace {

// How often each class is entered, by class code.
constexpr std::array<int, 8> kClassWeights = {6, 8, 22, 16, 26, 8, 10, 4};
constexpr std::array<int, 4> kSpecialClassWeights = {15, 30, 20, 35};

constexpr int kOldestMonths = 150;

constexpr int kSpecialBreedPercent = 6;

/// The limits of both class lists.
struct Limits {
    int From(bool special, int trida) const {
        return (special ? Tables().SpecialClassFrom : Tables().ClassFrom)[Slot(trida)];
    }
    int To(bool special, int trida) const {
        return (special ? Tables().SpecialClassTo : Tables().ClassTo)[Slot(trida)];
    }

  private:
    static std::size_t Slot(int trida) { return static_cast<std::size_t>(trida - 1); }
};

/// A day of birth whose age on the day of the show opens the class.
DateValue AnyBirth(const Limits& limits, bool special, int trida, DateValue show, Dice& dice) {
    const int from = limits.From(special, trida);
    const int to = std::min(limits.To(special, trida), kOldestMonths);
    const ClassList list = special ? ClassList::Special : ClassList::Standard;
    while (true) {
        const DateValue born = show.PlusDays(-dice.Between(from * 30, to * 31));
        if (IsClassOpen(AgeInMonths(born, show, list), from, to))
            return born;
    }
}

int CurrencyOf(const Town& town) {
    const std::u16string_view country = town.country;
    return country.empty() ? 0 : country == u"Polsko" ? 2 : 1;
}

/// Papers print Jmeno alone, so the whole name stands there. The surname's box is left empty; an
/// owner added by the editor's safety net has none at all.
void SetName(Majitele& owner, const Person& person, Dice& dice) {
    owner.Jmeno = person.firstName + u' ' + person.surname;
    if (!dice.Chance(3))
        owner.Prijmeni = QString();
}

EnteredOwner EnterOwner(int number, Dice& dice) {
    const Person person = AnyPerson(dice);
    const Town& town = AnyTown(dice);
    Majitele owner;
    SetName(owner, person, dice);
    owner.Ulice = AnyStreet(dice);
    owner.Mesto = QString::fromUtf16(town.name);
    owner.PSC = town.postCode;
    if (*town.country)
        owner.Stat = QString::fromUtf16(town.country);
    if (dice.Chance(90))
        owner.Telefon = AnyPhone(dice);
    if (dice.Chance(70))
        owner.Email = EmailOf(person, number);
    return {InsertOwner(owner), CurrencyOf(town)};
}

/// The first breeds are the popular ones.
int AnyBreed(const std::vector<int>& breeds, Dice& dice) {
    if (dice.Chance(kSpecialBreedPercent))
        return breeds.front();
    const int count = static_cast<int>(breeds.size());
    const int within = dice.Chance(50) ? std::max(1, count / 5) : count;
    return breeds[static_cast<std::size_t>(dice.Below(within))];
}

QString Parent(Dice& dice, bool male) {
    if (dice.Chance(4))
        return {};
    const QString name = AnyDogName(dice, male);
    return name + u' ' + AnyKennel(dice);
}

void DescribeDog(Psi& dog, const ShowSetUp& setUp, Dice& dice) {
    dog.PohlaviPes = dice.Chance(48);
    dog.Jmeno = AnyDogName(dice, dog.PohlaviPes);
    if (dice.Chance(92))
        dog.ChovnaStanice = AnyKennel(dice);
    dog.BarvaID = dice.Chance(90) ? dice.Pick(setUp.colours) : 0;
    dog.Otec = Parent(dice, true);
    dog.Matka = Parent(dice, false);
    dog.PK = AnyStudBookEntry(dice, dog.DatumNar->Year());
    if (dice.Chance(80)) {
        const Person breeder = AnyPerson(dice);
        dog.Chovatel = breeder.firstName + u' ' + breeder.surname;
    }
    if (dice.Chance(8))
        dog.Poznamka = AnyNote(dice);
}

Psi AnyDog(const ShowSetUp& setUp, const Limits& limits, Dice& dice) {
    Psi dog;
    dog.PlemenoID = AnyBreed(setUp.breeds, dice);
    const bool special = dog.PlemenoID == kSpecialBreedID;
    dog.Trida =
        1 + (special ? dice.PickWeighted(kSpecialClassWeights) : dice.PickWeighted(kClassWeights));
    dog.DatumNar = AnyBirth(limits, special, dog.Trida, setUp.day, dice);
    dog.PrvniUzaverka = dice.Chance(75);
    DescribeDog(dog, setUp, dice);
    return dog;
}

/// Most dogs stand in one show, a few in none yet and a few in two.
std::vector<int> AnyShows(const std::vector<int>& shows, Dice& dice) {
    const int kind = dice.Below(100);
    if (kind < 6)
        return {};
    if (kind < 8)
        return {shows.front(), shows.back()};
    return {dice.Chance(80) ? shows.front() : dice.Pick(shows)};
}

std::vector<int> AnyOf(const std::vector<int>& all, int percent, Dice& dice) {
    std::vector<int> picked;
    if (dice.Chance(percent))
        picked.push_back(dice.Pick(all));
    return picked;
}

void EnterInShows(int psiID, const ShowSetUp& setUp, Dice& dice) {
    AddDogToShows(psiID, AnyShows(setUp.shows, dice));
    AddDogToCompetitions(psiID, AnyOf(setUp.competitions, 15, dice));
    AddAwardsToDog(psiID, AnyOf(setUp.awards, 5, dice));
}

} // namespace

std::vector<EnteredOwner> EnterOwners(const ShowSize& size, Dice& dice) {
    std::vector<EnteredOwner> owners;
    for (int i = 1; i <= size.owners; ++i)
        owners.push_back(EnterOwner(i, dice));
    return owners;
}

std::vector<EnteredDog> EnterDogs(const ShowSize& size, const ShowSetUp& setUp,
                                  const std::vector<EnteredOwner>& owners, Dice& dice) {
    const Limits limits;
    std::vector<EnteredDog> dogs;
    for (int i = 0; i < size.dogs; ++i) {
        const bool first = i < size.owners;
        Psi dog = AnyDog(setUp, limits, dice);
        EnteredDog entered;
        entered.owner = first ? i : dice.Below(size.owners);
        dog.MajitelID = owners[static_cast<std::size_t>(entered.owner)].ID;
        entered.account = {InsertDog(dog), dog.Trida, dog.PrvniUzaverka, first,
                           dog.PlemenoID == kSpecialBreedID};
        if (first)
            MarkFirstDog(entered.account.ID);
        EnterInShows(entered.account.ID, setUp, dice);
        dogs.push_back(entered);
    }
    return dogs;
}

} // namespace lorvo::show
