#include "store/psi_lists.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

class PsiListsTest : public RoutinesTest {
  protected:
    static int AddDog(const char* jmeno, Assignments fields = {}) {
        fields.emplace_back("Jmeno", Text(jmeno));
        return Add("Psi", fields);
    }
};

TEST_F(PsiListsTest, TheDogListJoinsOwnerAndBreedAndDropsOrphans) {
    const int owner = Add("Majitele", {{"Jmeno", Text("Jan O'Neil")}});
    const int breed = Add("Plemena", {{"NazevOrig", Text("Pudel")}});
    const int rek = AddDog("Rek", {{"PlemenoID", breed},
                                   {"MajitelID", owner},
                                   {"ChovnaStanice", Text("z Luk")},
                                   {"Trida", 4},
                                   {"PohlaviPes", true},
                                   {"PrvniPes", true},
                                   {"Poznamka", Text("pozn.")}});
    AddDog("Čert", {{"PlemenoID", breed}, {"MajitelID", owner}, {"PrvniUzaverka", true}});
    AddDog("Bez majitele", {{"PlemenoID", breed}, {"MajitelID", owner + 1}});
    AddDog("Bez plemene", {{"PlemenoID", breed + 1}, {"MajitelID", owner}});
    const std::vector<DogListRow> rows = DogsWithOwnersByName();
    EXPECT_EQ(Jmena(rows), (Texts{"Čert", "Rek"}));
    EXPECT_TRUE(rows[0].PrvniUzaverka);
    EXPECT_FALSE(rows[0].PohlaviPes);
    const DogListRow& row = rows[1];
    EXPECT_EQ(row.IDPsa, rek);
    EXPECT_EQ(row.ChovnaStanice, u"z Luk");
    EXPECT_EQ(row.Trida, 4);
    EXPECT_TRUE(row.PohlaviPes);
    EXPECT_TRUE(row.PrvniPes);
    EXPECT_FALSE(row.PrvniUzaverka);
    EXPECT_EQ(row.Poznamka, u"pozn.");
    EXPECT_EQ(row.PlemenoID, breed);
    EXPECT_TRUE(row.NazevPlemene.isEmpty());
    EXPECT_EQ(row.NazevOrig, u"Pudel");
    EXPECT_EQ(row.MajitelID, owner);
    EXPECT_EQ(row.JmenoMajitele, u"Jan O'Neil");
}

TEST_F(PsiListsTest, TheDogListIsInCzechOrderHoweverLongNamesAreAlike) {
    const int owner = Add("Majitele", {{"Jmeno", Text("Jan")}});
    const int breed = Add("Plemena", {{"Nazev", Text("Pudl")}});
    const auto add = [&](const char* jmeno) {
        return AddDog(jmeno, {{"PlemenoID", breed}, {"MajitelID", owner}});
    };
    for (const char* jmeno : {"Nejkrásnější chrt", "Nejkrásnější hoch", "b", "Nejkrásnější Chrt",
                              "Nejkrásnější", "á", "Nejkrásnější", "", "a"})
        add(jmeno);
    Add("Psi", {{"PlemenoID", breed}, {"MajitelID", owner}}); // without a name
    const std::vector<DogListRow> rows = DogsWithOwnersByName();
    EXPECT_EQ(Jmena(rows), (Texts{"", "", "a", "á", "b", "Nejkrásnější", "Nejkrásnější",
                                  "Nejkrásnější hoch", "Nejkrásnější chrt", "Nejkrásnější Chrt"}));
    EXPECT_TRUE(rows[0].IDPsa > rows[1].IDPsa) << "no name before an empty one";
    EXPECT_LT(rows[5].IDPsa, rows[6].IDPsa) << "alike ones as they were entered";
}

TEST_F(PsiListsTest, FeeRowsComeInIDOrder) {
    const int b = AddDog("b", {{"MajitelID", 2}, {"Trida", 3}, {"PrvniUzaverka", true}});
    const int a = AddDog("a", {{"MajitelID", 1}, {"Trida", Value()}, {"PrvniPes", true}});
    const std::vector<DogFeeRow> dogs = DogFeeRows();
    ASSERT_EQ(dogs.size(), 2u);
    EXPECT_EQ(dogs[0].ID, b);
    EXPECT_EQ(dogs[0].MajitelID, 2);
    EXPECT_EQ(dogs[0].Trida, 3);
    EXPECT_TRUE(dogs[0].PrvniUzaverka);
    EXPECT_FALSE(dogs[0].PrvniPes);
    EXPECT_EQ(dogs[1].ID, a);
    EXPECT_EQ(dogs[1].Trida, 0);
    EXPECT_TRUE(dogs[1].PrvniPes);
}

TEST_F(PsiListsTest, DogsWithoutANumberComeFirst) {
    AddDog("dva", {{"Cislo", 2}});
    AddDog("nic");
    AddDog("deset", {{"Cislo", 10}});
    AddDog("nula", {{"Cislo", 0}});
    AddDog("jedna", {{"Cislo", 1}});
    AddDog("tři", {{"Cislo", 3}});
    EXPECT_EQ(Jmena(DogsByNumber()), (Texts{"nic", "nula", "jedna", "dva", "tři", "deset"}));
    EXPECT_EQ(Jmena(FirstFiveDogsByNumber()), (Texts{"nic", "nula", "jedna", "dva", "tři"}));
}

TEST_F(PsiListsTest, ReportsReadTheDogsInTheirOrders) {
    AddDog("Dora", {{"PohlaviPes", false}, {"Trida", 1}, {"PlemenoID", 1}});
    AddDog("Čip", {{"PohlaviPes", true}, {"Trida", 2}, {"PlemenoID", 1}});
    AddDog("Cipín", {{"PohlaviPes", true}, {"Trida", 2}, {"PlemenoID", 2}});
    AddDog("Eda", {{"PohlaviPes", true}, {"Trida", 1}, {"PlemenoID", 1}});
    EXPECT_EQ(Jmena(DogsByName()), (Texts{"Cipín", "Čip", "Dora", "Eda"}));
    EXPECT_EQ(Jmena(DogsBySex()), (Texts{"Cipín", "Čip", "Eda", "Dora"}));
    EXPECT_EQ(Jmena(MalesByClass()), (Texts{"Eda", "Cipín", "Čip"}));
    EXPECT_EQ(CountMales(), 3);
    EXPECT_EQ(CountFemales(), 1);
}

TEST_F(PsiListsTest, ParentsAreFoundByTheExactName) {
    AddDog("Zora", {{"Otec", Text("D'Artagnan")}, {"Matka", Text("Bára")}});
    AddDog("Áron", {{"Otec", Text("D'Artagnan")}, {"Matka", Text("bára")}});
    AddDog("Rek", {{"Otec", Text("Bára")}});
    EXPECT_EQ(Jmena(DogsOfFather(Text("D'Artagnan"))), (Texts{"Áron", "Zora"}));
    EXPECT_EQ(Jmena(DogsOfMother(Text("Bára"))), Texts{"Zora"});
    EXPECT_TRUE(DogsOfMother(Text("D'Artagnan")).empty());
}

TEST_F(PsiListsTest, BitchesOfABreederComeInIDOrder) {
    AddDog("Zora", {{"Chovatel", Text("O'Brien")}, {"PohlaviPes", false}});
    AddDog("Rek", {{"Chovatel", Text("O'Brien")}, {"PohlaviPes", true}});
    AddDog("Aja", {{"Chovatel", Text("O'Brien")}, {"PohlaviPes", Value()}});
    AddDog("Bela", {{"Chovatel", Text("Jiný")}, {"PohlaviPes", false}});
    EXPECT_EQ(Jmena(BitchesOfBreeder(Text("O'Brien"))), (Texts{"Zora", "Aja"}));
}

TEST_F(PsiListsTest, CountsByBreedHoldAgainstTheSingleCounts) {
    AddDog("a", {{"PlemenoID", 1}, {"BarvaID", 6}, {"Trida", 8}});
    AddDog("b", {{"PlemenoID", 1}, {"BarvaID", 6}, {"Trida", 1}});
    AddDog("c", {{"PlemenoID", 3}, {"Trida", 8}});
    const auto counts = DogCountsByBreed();
    EXPECT_EQ(counts.size(), 2u);
    for (const auto& [plemenoID, count] : counts)
        EXPECT_EQ(count, CountDogsOfBreed(plemenoID));
    EXPECT_EQ(CountDogsOfColour(6), 2);
    EXPECT_EQ(CountDogsOfColour(0), 1);
    EXPECT_EQ(CountDogsWithClass(8), 2);
}

TEST_F(PsiListsTest, NumbersOfAnOwnerRiseAndKeepNull) {
    AddDog("a", {{"MajitelID", 1}, {"Cislo", 12}});
    AddDog("b", {{"MajitelID", 2}, {"Cislo", 1}});
    AddDog("c", {{"MajitelID", 1}});
    AddDog("d", {{"MajitelID", 1}, {"Cislo", 7}});
    const auto numbers = DogNumbersByOwner();
    EXPECT_EQ(numbers.at(1), (std::vector<std::optional<int>>{std::nullopt, 7, 12}));
    EXPECT_EQ(numbers.at(2), (std::vector<std::optional<int>>{1}));
}

} // namespace

} // namespace lorvo::test
