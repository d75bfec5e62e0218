#include "show/show_generator.h"

#include "app/constant_tables.h"
#include "office/dogs/class_eligibility.h"
#include "store/barvy.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/majitele.h"
#include "store/meny.h"
#include "store/oceneni.h"
#include "store/ostatni.h"
#include "store/plemena.h"
#include "store/psi.h"
#include "store/psi_ve_vystavach.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/vystavy.h"
#include "support/print_qt.h"
#include "support/temp_database.h"

#include <QFile>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using show::Numbers;

constexpr auto kDelivered = TempDatabase::Content::Delivered;

QByteArray BytesOfShow(std::uint64_t seed) {
    TempDatabase database(kDelivered);
    show::GenerateShow(*show::SizeNamed("club"), seed, Numbers::Some);
    TheDataModule().Conn1.Close();
    QFile file(database.Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(ShowGenerator, TheSameSeedGivesTheSameFile) {
    const QByteArray first = BytesOfShow(7);
    EXPECT_GT(first.size(), 100000);
    EXPECT_EQ(first, BytesOfShow(7));
    EXPECT_NE(first, BytesOfShow(8));
}

class GeneratedShow : public ::testing::TestWithParam<const char*> {
  protected:
    GeneratedShow() { show::GenerateShow(size_, 3, Numbers::All); }

    TempDatabase database_{kDelivered};
    show::ShowSize size_ = *show::SizeNamed(GetParam());
};

TEST_P(GeneratedShow, HasTheNumbersOfItsSize) {
    EXPECT_EQ(CountDogs(), size_.dogs);
    EXPECT_EQ(static_cast<int>(OwnersByID().size()), size_.owners);
    EXPECT_EQ(static_cast<int>(RingsByName().size()), size_.rings);
    EXPECT_EQ(CountUsedBreeds(), size_.breeds + size_.subgroups);
    EXPECT_EQ(static_cast<int>(Subgroups(BreedFilter::Used).size()), size_.subgroups);
    EXPECT_EQ(CountPayments(), size_.payments);
    EXPECT_EQ(CountShows(), 3);
    EXPECT_EQ(Competitions().size(), 10u);
    EXPECT_EQ(Awards().size(), 12u);
    EXPECT_EQ(Colours().size(), 16u);
    EXPECT_EQ(CountCurrencies(), 3);
}

TEST_P(GeneratedShow, EveryDogIsOldEnoughForItsClassAndNotTooOld) {
    const DateValue day = *ShowWideValues()->DatumVystavy;
    std::set<std::pair<bool, int>> seen;
    for (const Psi& dog : DogsByBreed()) {
        const bool special = dog.PlemenoID == kSpecialBreedID;
        const int age =
            AgeInMonths(*dog.DatumNar, day, special ? ClassList::Special : ClassList::Standard);
        const std::vector<int> open =
            special ? OpenClasses(age, Tables().SpecialClassFrom, Tables().SpecialClassTo)
                    : OpenClasses(age, Tables().ClassFrom, Tables().ClassTo);
        ASSERT_TRUE(std::find(open.begin(), open.end(), dog.Trida) != open.end())
            << dog.ID << " of class " << dog.Trida << " is " << age;
        seen.emplace(special, dog.Trida);
    }
    EXPECT_EQ(seen.size(), 8u + 4u) << "a class without dogs";
}

TEST_P(GeneratedShow, EveryOwnerHasDogsAndOneFirstAmongThem) {
    std::map<int, int> firstDogs;
    for (const Psi& dog : DogsByBreed())
        firstDogs[dog.MajitelID] += dog.PrvniPes ? 1 : 0;
    EXPECT_EQ(static_cast<int>(firstDogs.size()), size_.owners);
    for (const auto& [owner, count] : firstDogs)
        ASSERT_EQ(count, 1) << owner;
}

TEST_P(GeneratedShow, DogsStandInUsedBreedsOfRings) {
    const auto breeds = BreedsByID();
    for (const Psi& dog : DogsByBreed()) {
        ASSERT_TRUE(breeds.at(dog.PlemenoID).Pouzivat);
        ASSERT_GT(breeds.at(dog.PlemenoID).ID_Kruhu, 0);
    }
    EXPECT_TRUE(UsedBreedsOutsideRings().empty());
    EXPECT_GT(CountDogsOfBreed(kSpecialBreedID), 0);
}

TEST_P(GeneratedShow, MostDogsStandInOneShow) {
    std::map<std::size_t, int> dogs;
    const LinkTable shows = ShowLinks();
    for (const int dog : shows.Owners())
        ++dogs[shows.Of(dog).size()];
    EXPECT_GT(dogs[1], size_.dogs * 85 / 100);
    EXPECT_GT(dogs[2], 0);
    EXPECT_LT(dogs[1] + dogs[2], size_.dogs);
}

TEST_P(GeneratedShow, EveryFeeIsThere) {
    for (const Vystavy& row : Shows()) {
        for (const std::optional<Currency>& fee : ShowFees(row.ID))
            EXPECT_TRUE(fee && *fee > Currency()) << row.Nazev.toStdString();
    }
}

TEST_P(GeneratedShow, PaymentsAreConverted) {
    ASSERT_EQ(MainCurrencies().size(), 1u);
    EXPECT_EQ(MainCurrencies()[0].Zkratka, u"Kč"_s);
    EXPECT_EQ(MainCurrencies()[0].Kurs, Currency::FromUnits(1));
    std::set<int> currencies;
    for (const Psi& dog : DogsByBreed()) {
        for (const Uhrady& payment : PaymentsOfDog(dog.ID)) {
            ASSERT_EQ(payment.Kc, payment.Castka * payment.Kurs);
            ASSERT_GT(payment.Castka, Currency());
            currencies.insert(payment.Mena);
        }
    }
    EXPECT_EQ(currencies.size(), 3u);
    EXPECT_EQ(static_cast<int>(PaymentsWithOwners().size()), size_.payments);
}

TEST_P(GeneratedShow, AllDogsAreNumberedFromOne) {
    std::set<int> numbers;
    for (const TreeDog& dog : TreeDogsByBreed())
        numbers.insert(dog.Cislo);
    EXPECT_EQ(static_cast<int>(numbers.size()), size_.dogs);
    EXPECT_EQ(*numbers.begin(), 1);
    EXPECT_EQ(*numbers.rbegin(), size_.dogs);
}

INSTANTIATE_TEST_SUITE_P(Sizes, GeneratedShow, ::testing::Values("club", "national"),
                         [](const auto& size) { return std::string(size.param); });

TEST(ShowGenerator, NumbersAreLeftOutWhereAsked) {
    for (const auto& [numbers, expected] :
         std::map<Numbers, int>{{Numbers::None, 0}, {Numbers::Some, 266}, {Numbers::All, 400}}) {
        TempDatabase database(kDelivered);
        show::GenerateShow(*show::SizeNamed("club"), 1, numbers);
        EXPECT_EQ(CountNumberedDogs(), expected);
    }
}

TEST(ShowGenerator, KnowsItsSizesByName) {
    EXPECT_EQ(show::SizeNamed("world")->dogs, 25000);
    EXPECT_FALSE(show::SizeNamed("galaxy"));
    EXPECT_EQ(show::NumbersNamed("some"), Numbers::Some);
    EXPECT_FALSE(show::NumbersNamed(""));
}

} // namespace
} // namespace lorvo
