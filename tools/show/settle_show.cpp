// Breeds, rings, shows with their fees, and the lists of codes.

#include "app/constant_tables.h"
#include "platform/values/errors.h"
#include "show/show_parts.h"
#include "store/barvy.h"
#include "store/kruhy.h"
#include "store/oceneni.h"
#include "store/ostatni.h"
#include "store/plemena.h"
#include "store/souteze.h"
#include "store/vystavy.h"

#include <algorithm>

namespace lorvo::show {

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* kColours[] = {
    u"černá",      u"bílá",     u"hnědá",    u"zlatá",     u"šedá",  u"žíhaná",
    u"rezavá",     u"krémová",  u"modrá",    u"trikolora", u"plavá", u"černá s pálením",
    u"pepř a sůl", u"skvrnitá", u"vlkošedá", u"čokoládová"};

constexpr const char16_t* kShows[] = {u"Hlavní výstava", u"Klubová výstava", u"Speciální výstava"};

constexpr const char16_t* kAwards[] = {
    u"CAJC",          u"CAC",          u"r. CAC",      u"CACIB",          u"r. CACIB",
    u"BOB",           u"BOS",          u"Vítěz třídy", u"Nejlepší mladý", u"Nejlepší veterán",
    u"Klubový vítěz", u"Národní vítěz"};

struct CompetitionRow {
    const char16_t* name;
    int price;
    const char16_t* firstOfPair; ///< empty where dogs compete alone
    const char16_t* secondOfPair;
};
constexpr CompetitionRow kCompetitions[] = {{u"Nejlepší pár", 150, u"Psi", u"Feny"},
                                            {u"Chovatelská skupina", 200, u"", u""},
                                            {u"Dítě a pes", 50, u"", u""},
                                            {u"Mladý vystavovatel", 80, u"", u""},
                                            {u"Nejkrásnější hlava", 100, u"", u""},
                                            {u"Nejlepší veterán", 100, u"", u""},
                                            {u"Nejlepší pracovní jedinec", 120, u"", u""},
                                            {u"Nejlepší štěně", 80, u"", u""},
                                            {u"Nejlepší dorost", 80, u"", u""},
                                            {u"Pes a jeho potomek", 150, u"Rodiče", u"Potomci"}};

// Fees of the first closing for an owner's first dog, by class column. What is not shown here
// follows: a further dog pays 100 less, the second closing costs 150 more.
constexpr int kFees[kFeeClasses] = {350, 450, 600, 650, 650, 650, 600, 400, 600};
constexpr int kFurtherDogDiscount = 100;
constexpr int kSecondClosingSurcharge = 150;

QString ToText(const char16_t* text) {
    return QString::fromUtf16(text);
}

std::vector<int> OfficialBreeds(int count, Dice& dice) {
    std::vector<int> breeds;
    for (const Plemena& breed : TopBreeds())
        breeds.push_back(breed.ID);
    std::sort(breeds.begin(), breeds.end());
    breeds.erase(std::remove(breeds.begin(), breeds.end(), kSpecialBreedID), breeds.end());
    dice.Shuffle(breeds);
    breeds.insert(breeds.begin(), kSpecialBreedID);
    breeds.resize(std::min(breeds.size(), static_cast<std::size_t>(count)));
    return breeds;
}

/// The user's own subgroups, each below another breed than the special one.
std::vector<int> AddSubgroups(int count, const std::vector<int>& official) {
    constexpr std::size_t kKinds = 4; // sizes that a breed is divided by
    std::vector<int> subgroups;
    for (int i = 0; i < count; ++i) {
        const std::size_t at = static_cast<std::size_t>(i);
        const int parent = official[1 + at % (official.size() - 1)];
        const QString name =
            BreedByID(parent)->Nazev + u", "_s + Tables().DogSizes[1 + at % kKinds];
        subgroups.push_back(InsertSubgroup(parent, name));
    }
    return subgroups;
}

std::vector<int> AddBreeds(const ShowSize& size, Dice& dice) {
    std::vector<int> breeds = OfficialBreeds(size.breeds, dice);
    const std::vector<int> subgroups = AddSubgroups(size.subgroups, breeds);
    breeds.insert(breeds.end(), subgroups.begin(), subgroups.end());
    return breeds;
}

/// Each breed is in use and in a ring: numbering passes over dogs outside the rings.
void AddRings(int count, const std::vector<int>& breeds) {
    std::vector<int> rings;
    for (int i = 1; i <= count; ++i)
        rings.push_back(InsertRing(u"Kruh %1"_s.arg(i, 2, 10, QChar(u'0'))));
    for (std::size_t i = 0; i < breeds.size(); ++i) {
        if (!SetBreedUsed(breeds[i], true))
            throw StoreError("There is no breed " + std::to_string(breeds[i]) + '.');
        MoveBreedToRing(breeds[i], rings[i % rings.size()]);
    }
}

std::array<Currency, kFeeColumns> Fees(int surcharge) {
    std::array<Currency, kFeeColumns> fees;
    auto next = fees.begin();
    for (const int closing : {0, kSecondClosingSurcharge}) {
        for (const int fee : kFees) {
            *next++ = Currency::FromUnits(fee + closing + surcharge);
            *next++ = Currency::FromUnits(fee + closing + surcharge - kFurtherDogDiscount);
        }
    }
    return fees;
}

std::vector<int> AddShows() {
    std::vector<int> shows;
    for (const char16_t* name : kShows) {
        const int show = InsertShow(ToText(name));
        UpdateShow(show, ToText(name), Fees(static_cast<int>(shows.size()) * 50));
        shows.push_back(show);
    }
    return shows;
}

std::vector<int> AddCompetitions() {
    std::vector<int> competitions;
    for (const CompetitionRow& row : kCompetitions) {
        Souteze competition;
        competition.Nazev = ToText(row.name);
        competition.Cena = Currency::FromUnits(row.price);
        competition.NazevPar1 = ToText(row.firstOfPair);
        competition.NazevPar2 = ToText(row.secondOfPair);
        competition.Parova = !competition.NazevPar1.isEmpty();
        competitions.push_back(InsertCompetition(competition));
    }
    return competitions;
}

std::vector<Meny> AddCurrencies() {
    std::vector<Meny> currencies = {
        {0, u"Koruna česká"_s, u"Kč"_s, Currency::FromUnits(1), true},
        {0, u"Euro"_s, u"EUR"_s, Currency::FromText("25.345"), false},
        {0, u"Polský zlotý"_s, u"PLN"_s, Currency::FromText("5.8725"), false}};
    for (Meny& currency : currencies)
        currency.ID = InsertCurrency(currency);
    return currencies;
}

} // namespace

ShowSetUp SettleShow(const ShowSize& size, Dice& dice) {
    ShowSetUp setUp;
    setUp.day = DateValue::FromCalendar(2027, 5, 15);
    setUp.breeds = AddBreeds(size, dice);
    AddRings(size.rings, setUp.breeds);
    setUp.shows = AddShows();
    SetShowDate(setUp.day);
    SetClosingsOfFirstShow(setUp.day.PlusDays(-60), setUp.day.PlusDays(-30));
    for (const char16_t* colour : kColours)
        setUp.colours.push_back(InsertColour(ToText(colour)));
    setUp.competitions = AddCompetitions();
    for (const char16_t* award : kAwards)
        setUp.awards.push_back(InsertAward(ToText(award)));
    setUp.currencies = AddCurrencies();
    return setUp;
}

} // namespace lorvo::show
