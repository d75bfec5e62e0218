#include "store/plemena.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

class PlemenaTest : public RoutinesTest {
  protected:
    static int AddBreed(const char* nazev, Assignments fields = {}) {
        fields.emplace_back("Nazev", Text(nazev));
        return Add("Plemena", fields);
    }
};

TEST_F(PlemenaTest, NullFieldsReadAsEmptyZeroAndFalse) {
    const int ID = Add("Plemena", {{"FCI", Value()}, {"Pouzivat", Value()}, {"Vlastni", Value()}});
    const Plemena breed = BreedByID(ID).value();
    EXPECT_TRUE(breed.Nazev.isEmpty());
    EXPECT_TRUE(breed.NazevOrig.isEmpty());
    EXPECT_EQ(breed.FCI, 0);
    EXPECT_FALSE(breed.Pouzivat);
    EXPECT_FALSE(breed.Vlastni);
    EXPECT_FALSE(BreedByID(ID + 1));
    EXPECT_THROW(ExistingBreed(ID + 1), StoreError);
}

// kept: two-halves-of-the-tree
TEST_F(PlemenaTest, OutsideRingsOnlyUsedBreedsCountInARingAll) {
    AddBreed("Šeltie", {{"Pouzivat", true}});
    AddBreed("Sloughi", {{"Pouzivat", true}});
    AddBreed("Nepoužité");
    AddBreed("Zlatý retrívr", {{"ID_Kruhu", 2}});
    AddBreed("Čau-čau", {{"ID_Kruhu", 2}, {"Pouzivat", true}});
    AddBreed("Chrt", {{"ID_Kruhu", 1}, {"Pouzivat", true}});
    EXPECT_EQ(Nazvy(UsedBreedsOutsideRings()), (Texts{"Sloughi", "Šeltie"}));
    EXPECT_EQ(Nazvy(BreedsByRing()), (Texts{"Chrt", "Čau-čau", "Zlatý retrívr"}));
    EXPECT_EQ(Nazvy(UsedBreedsByName()), (Texts{"Čau-čau", "Chrt", "Sloughi", "Šeltie"}));
}

TEST_F(PlemenaTest, CountsOfARingDifferByUse) {
    AddBreed("a", {{"ID_Kruhu", 2}, {"FCI", 5}});
    AddBreed("b", {{"ID_Kruhu", 2}, {"Pouzivat", true}});
    AddBreed("c", {{"Pouzivat", true}, {"FCI", 5}});
    EXPECT_EQ(CountBreeds(), 3);
    EXPECT_EQ(CountUsedBreeds(), 2);
    EXPECT_EQ(CountBreedsOfRing(2), 2);
    EXPECT_EQ(CountUsedBreedsOfRing(2), 1);
    EXPECT_EQ(CountUsedBreedsOfRing(0), 1);
    EXPECT_EQ(CountBreedsOfFci(5), 2);
    EXPECT_EQ(Nazvy(UsedBreedsOfFci(5)), Texts{"c"});
}

TEST_F(PlemenaTest, TopBreedsAndSubgroupsAreApart) {
    const int pudl = AddBreed("Pudl", {{"Pouzivat", true}});
    AddBreed("Akita");
    AddBreed("Pudl hnědý", {{"Parent", pudl}});
    AddBreed("Pudl černý", {{"Parent", pudl}, {"Pouzivat", true}});
    EXPECT_EQ(Nazvy(TopBreeds()), (Texts{"Akita", "Pudl"}));
    EXPECT_EQ(Nazvy(TopBreeds(BreedFilter::Used)), Texts{"Pudl"});
    EXPECT_EQ(Nazvy(Subgroups()), (Texts{"Pudl černý", "Pudl hnědý"}));
    EXPECT_EQ(Nazvy(Subgroups(BreedFilter::Used)), Texts{"Pudl černý"});
    const auto byID = BreedsByID();
    EXPECT_EQ(byID.size(), 4u);
    EXPECT_EQ(byID.at(pudl).Nazev, BreedByID(pudl)->Nazev);
}

TEST_F(PlemenaTest, ANameIsFoundWhateverItsLetterCase) {
    AddBreed("ČEŠKA O'Hary");
    EXPECT_EQ(CountBreedsNamed(Text("češka o'HARY")), 1);
    EXPECT_EQ(CountBreedsNamed(Text("ceska o'hary")), 0);
}

TEST_F(PlemenaTest, ASubgroupTakesTheGroupOfItsBreed) {
    const int parent = AddBreed("Pudl", {{"FCI", 9}, {"ID_Kruhu", 4}, {"Pouzivat", true}});
    const Plemena breed = BreedByID(InsertSubgroup(parent, Text("Nové plemeno"))).value();
    EXPECT_EQ(breed.Nazev, u"Nové plemeno");
    EXPECT_EQ(breed.Parent, parent);
    EXPECT_EQ(breed.FCI, 9);
    EXPECT_TRUE(breed.Vlastni);
    EXPECT_FALSE(breed.Pouzivat);
    EXPECT_EQ(breed.ID_Kruhu, 0);
    EXPECT_THROW(InsertSubgroup(parent + 100, Text("x")), StoreError);
    EXPECT_EQ(CountBreeds(), 2);
}

TEST_F(PlemenaTest, EachWriteTouchesItsFieldsAlone) {
    const int ID = AddBreed("Staré", {{"NazevOrig", Text("Old")}});
    RenameBreed(ID, Text("L'Épagneul"));
    SetBreedFci(ID, 7);
    MoveBreedToRing(ID, 3);
    EXPECT_TRUE(SetBreedUsed(ID, true));
    Plemena breed = BreedByID(ID).value();
    EXPECT_EQ(breed.Nazev, Text("L'Épagneul"));
    EXPECT_EQ(breed.NazevOrig, u"Old");
    EXPECT_EQ(breed.FCI, 7);
    EXPECT_EQ(breed.ID_Kruhu, 3);
    EXPECT_TRUE(breed.Pouzivat);
    SetBreedNames(ID, Text("Nové"), Text(""));
    breed = BreedByID(ID).value();
    EXPECT_EQ(breed.Nazev, Text("Nové"));
    EXPECT_TRUE(breed.NazevOrig.isEmpty());
}

TEST_F(PlemenaTest, AMissingBreedIsNotPutInUse) {
    EXPECT_FALSE(SetBreedUsed(99999, true));
    EXPECT_THROW(RenameBreed(99999, Text("x")), StoreError);
}

TEST_F(PlemenaTest, OwnBreedsAreDeletedTogetherOthersOneByOne) {
    const int base = AddBreed("Základní", {{"Pouzivat", true}});
    const int own = AddBreed("Vlastní", {{"Vlastni", true}});
    const int other = AddBreed("Jiné");
    DeleteOwnBreeds();
    EXPECT_FALSE(BreedByID(own));
    DeleteBreed(other);
    EXPECT_EQ(Column("SELECT ID FROM Plemena"), Texts{std::to_string(base)});
}

} // namespace

} // namespace lorvo::test
