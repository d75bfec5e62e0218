// What is read for all rows at once holds against the statements that read it row by row, on a
// show with all that a show can hold: Nulls, orphans, entries given twice.

#include "store/majitele.h"
#include "store/psi_lists.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/routines_fixture.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"

#include <algorithm>
#include <random>

namespace lorvo::test {

namespace {

constexpr int kDogs = 120;
constexpr int kOwners = 40;
constexpr int kBreeds = 9;
constexpr int kShows = 3;

class WholeListsTest : public RoutinesTest {
  protected:
    WholeListsTest() {
        EditRun run(TheDataModule().Conn1);
        AddLists();
        for (int i = 0; i < kDogs; ++i)
            AddDogWithLinks();
        run.Finish();
    }

    /// The first row of a statement's column, Null where there is none.
    static Value First(const std::string& statement, int column = 0) {
        return ReadFirst(TheDataModule().rsrsQuery1, statement,
                         [column](const RecordSet& row) { return row.Field(column); })
            .value_or(Value());
    }
    static Numbers DogIDs() { return ReadNumbers("SELECT ID FROM Psi"); }

  private:
    int Random(int from, int to) { return from + static_cast<int>(random_() % (to - from + 1U)); }
    bool OneIn(int count) { return Random(1, count) == 1; }
    Value NameOrNull() {
        static const char* const names[] = {"Čert", "Cézar", "Hára", "Chán",
                                            "D'Or", "žula",  "Žula"};
        return OneIn(8) ? Value() : Value(Text(names[Random(0, 6)]));
    }

    void AddLists() {
        for (int i = 0; i < kOwners; ++i)
            Add("Majitele", {{"Jmeno", NameOrNull()}, {"Prijmeni", NameOrNull()}});
        for (int i = 0; i < kBreeds; ++i)
            Add("Plemena", {{"Nazev", NameOrNull()}});
        for (int i = 0; i < kShows; ++i)
            AddShow();
        for (int i = 0; i < 4; ++i)
            Add("Oceneni", {{"Nazev", NameOrNull()}});
    }

    void AddShow() {
        Assignments fields;
        for (const std::string& column : FeeColumns())
            fields.emplace_back(column.c_str(), Currency::FromRaw(Random(0, 9'999'999)));
        Add("Vystavy", fields);
    }

    void AddDogWithLinks() {
        const int ID = Add("Psi", {{"Jmeno", NameOrNull()},
                                   {"PlemenoID", Random(1, kBreeds + 1)},
                                   {"MajitelID", Random(1, kOwners + 2)},
                                   {"Otec", NameOrNull()},
                                   {"Cislo", OneIn(4) ? Value() : Value(Random(0, 30))},
                                   {"PohlaviPes", OneIn(2)},
                                   {"Trida", Random(1, 9)},
                                   {"PrvniUzaverka", OneIn(2)},
                                   {"PrvniPes", OneIn(3)}});
        for (int i = Random(0, 2); i > 0; --i)
            AddLink("PsiVeVystavach", {{"PesID", ID}, {"VystavaID", Random(1, kShows)}});
        for (int i = Random(0, 3); i > 0; --i)
            AddLink("Vazby_Souteze", {{"ID_Psa", ID}, {"ID_Souteze", Random(1, 5)}});
        for (int i = Random(0, 3); i > 0; --i)
            AddLink("PsiOceneni", {{"IDPsa", ID}, {"IDOceneni", Random(1, 5)}});
        for (int i = Random(0, 2); i > 0; --i)
            Add("Uhrady", {{"ID_Psa", ID + 3 * Random(0, 1)},
                           {"Kc", Currency::FromRaw(Random(-9'999'999, 99'999'999))}});
    }

    std::mt19937 random_{2005};
};

TEST_F(WholeListsTest, PaidAmounts) {
    const auto paid = PaidByDog();
    for (const int ID : DogIDs()) {
        const Value sum = First("SELECT SUM (Kc) FROM Uhrady WHERE ID_Psa = " + Number(ID));
        const auto found = paid.find(ID);
        EXPECT_EQ(found == paid.end(), sum.IsNull());
        EXPECT_EQ(found == paid.end() ? Currency() : found->second, sum.ToCurrency());
    }
}

TEST_F(WholeListsTest, ShowEntriesWithTheirFees) {
    const FeeTables tables;
    const LinkTable shows = ShowLinks();
    EXPECT_TRUE(shows.Of(-1).empty());
    for (const DogFeeRow& dog : DogFeeRows()) {
        EXPECT_TRUE(std::ranges::equal(
            shows.Of(dog.ID),
            ReadNumbers("SELECT VystavaID FROM PsiVeVystavach WHERE PesID = " + Number(dog.ID))));
        for (const int vystavaID : shows.Of(dog.ID)) {
            const std::string column = std::string("Poplatky") + (dog.PrvniUzaverka ? "I" : "II") +
                                       "Class" + Number(dog.Trida) + "D" +
                                       (dog.PrvniPes ? "1" : "2");
            const Value fee = First(
                "SELECT Nazev, " + column + " FROM Vystavy WHERE ID= " + Number(vystavaID), 1);
            EXPECT_EQ(tables.Fee(vystavaID, dog.PrvniUzaverka, dog.Trida, dog.PrvniPes),
                      fee.ToCurrency());
        }
    }
}

TEST_F(WholeListsTest, CompetitionEntries) {
    const LinkTable competitions = CompetitionLinks();
    for (const int ID : DogIDs())
        EXPECT_TRUE(std::ranges::equal(
            competitions.Of(ID),
            ReadNumbers("SELECT ID_Souteze FROM Vazby_Souteze WHERE ID_Psa = " + Number(ID))));
    for (int soutezID = 0; soutezID <= 6; ++soutezID)
        EXPECT_EQ(CountDogsInCompetition(soutezID),
                  First("SELECT COUNT(*) FROM Vazby_Souteze WHERE ID_Souteze = " + Number(soutezID))
                      .ToInt());
}

TEST_F(WholeListsTest, AwardNames) {
    auto names = AwardNamesByDog();
    for (const int ID : DogIDs()) {
        const std::vector<QString> ofDog = ReadTexts(
            "SELECT Oceneni.Nazev FROM PsiOceneni, Oceneni WHERE PsiOceneni.IDPsa = " + Number(ID) +
            " AND PsiOceneni.IDOceneni = Oceneni.ID");
        EXPECT_EQ(names[ID], QStringList(ofDog.begin(), ofDog.end()));
    }
}

TEST_F(WholeListsTest, OwnersAndBreedsOfTheDogList) {
    Numbers expected;
    for (const Psi& dog : DogsByName()) {
        const Value owner = First("SELECT ID FROM Majitele WHERE ID=" + Number(dog.MajitelID));
        const Value breed = First("SELECT ID FROM Plemena WHERE ID= " + Number(dog.PlemenoID));
        if (!owner.IsNull() && !breed.IsNull())
            expected.push_back(dog.ID);
    }
    Numbers listed;
    for (const DogListRow& row : DogsWithOwnersByName()) {
        listed.push_back(row.IDPsa);
        EXPECT_EQ(row.JmenoMajitele,
                  First("SELECT Jmeno FROM Majitele WHERE ID=" + Number(row.MajitelID)).ToText());
        EXPECT_EQ(row.NazevPlemene,
                  First("SELECT Nazev FROM Plemena WHERE ID= " + Number(row.PlemenoID)).ToText());
    }
    EXPECT_EQ(listed, expected);
    EXPECT_LT(listed.size(), static_cast<std::size_t>(kDogs));
}

TEST_F(WholeListsTest, DogsOfAllBreedsInOneOrder) {
    std::vector<Psi> byBreed = DogsByBreed();
    auto dog = byBreed.begin();
    for (int plemenoID = 1; plemenoID <= kBreeds + 1; ++plemenoID)
        for (const int ofBreed :
             ReadRows(TheDataModule().rsrsQuery1,
                      "SELECT ID FROM Psi WHERE PlemenoID = " + Number(plemenoID) +
                          " ORDER BY PohlaviPes ASC, Trida ASC, Jmeno ASC",
                      [](const RecordSet& row) { return row.Field("ID").ToInt(); })) {
            ASSERT_NE(dog, byBreed.end());
            EXPECT_EQ((dog++)->ID, ofBreed);
        }
    EXPECT_EQ(dog, byBreed.end());
}

// What is put in order by the program stands as the engine's own sorter puts it.
TEST_F(WholeListsTest, ListsInOrder) {
    const auto expect = [](const auto& rows, auto id, const std::string& statement) {
        Numbers listed;
        for (const auto& row : rows)
            listed.push_back(row.*id);
        EXPECT_EQ(listed, ReadNumbers(statement)) << statement;
    };
    expect(OwnersByName(), &Majitele::ID, "SELECT ID FROM Majitele ORDER BY Jmeno ASC");
    expect(DogsByBreed(), &Psi::ID,
           "SELECT ID FROM Psi ORDER BY PlemenoID, PohlaviPes ASC, Trida ASC, Jmeno ASC");
    expect(PaymentsWithOwners(), &PaymentRow::UID,
           "SELECT Uhrady.ID FROM Uhrady, Psi, Majitele WHERE Uhrady.ID_Psa = Psi.ID AND "
           "Psi.MajitelID = Majitele.ID ORDER BY MajitelID");
    std::vector<QString> names = ReadTexts("SELECT DISTINCT Otec FROM Psi ORDER BY Otec");
    EXPECT_GT(names.size(), 5u);
    EXPECT_EQ(DistinctFathers(), names);
}

TEST_F(WholeListsTest, NumbersOfAllOwners) {
    auto numbers = DogNumbersByOwner();
    for (const Majitele& owner : OwnersByName()) {
        const auto ofOwner = ReadRows(
            TheDataModule().rsrsQuery1,
            "SELECT * FROM Psi WHERE MajitelID = " + Number(owner.ID) + " ORDER BY Cislo ASC",
            [](const RecordSet& row) { return ToOptionalInt(row.Field("Cislo")); });
        EXPECT_EQ(numbers[owner.ID], ofOwner);
    }
}

} // namespace

} // namespace lorvo::test
