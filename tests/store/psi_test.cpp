#include "store/psi.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

class PsiTest : public RoutinesTest {
  protected:
    static int AddDog(const char* jmeno, Assignments fields = {}) {
        fields.emplace_back("Jmeno", Text(jmeno));
        return Add("Psi", fields);
    }
    static Psi SampleDog() {
        Psi dog;
        dog.Jmeno = Text("Bak O'Hara");
        dog.ChovnaStanice = Text("z Řeřichových luk");
        dog.PlemenoID = 949;
        dog.MajitelID = 7;
        dog.BarvaID = 3;
        dog.PohlaviPes = true;
        dog.DatumNar = DateValue::FromCalendar(2004, 2, 29);
        dog.Trida = 3;
        dog.Otec = Text("Ó'Tec");
        dog.Matka = Text("Mátka");
        dog.PK = Text("CLP/NO/1");
        dog.Poznamka = Text("kouše; 'hodně'");
        dog.Chovatel = Text("Škvor");
        dog.PrvniUzaverka = true;
        return dog;
    }
};

TEST_F(PsiTest, AMissingDogIsNoRow) {
    EXPECT_FALSE(DogByID(1));
    EXPECT_THROW(ExistingDog(1), StoreError);
    EXPECT_FALSE(OwnerOfDog(1));
    EXPECT_FALSE(NumberOfFirstRow());
    EXPECT_TRUE(DogsOfOwner(0).empty());
    EXPECT_TRUE(TreeDogsByBreed().empty());
    EXPECT_EQ(CountDogs(), 0);
    EXPECT_EQ(CountDogsOfRing(0), 0);
}

TEST_F(PsiTest, AStoredDogReadsBackWhole) {
    const Psi dog = SampleDog();
    const int ID = InsertDog(dog);
    const Psi read = DogByID(ID).value();
    EXPECT_EQ(read.ID, ID);
    EXPECT_EQ(read.Jmeno, dog.Jmeno);
    EXPECT_EQ(read.ChovnaStanice, dog.ChovnaStanice);
    EXPECT_FALSE(read.Cislo);
    EXPECT_EQ(read.PlemenoID, 949);
    EXPECT_EQ(read.MajitelID, 7);
    EXPECT_EQ(read.BarvaID, 3);
    EXPECT_TRUE(read.PohlaviPes);
    EXPECT_EQ(read.DatumNar, dog.DatumNar);
    EXPECT_EQ(read.Trida, 3);
    EXPECT_EQ(read.Otec, dog.Otec);
    EXPECT_EQ(read.Matka, dog.Matka);
    EXPECT_EQ(read.PK, dog.PK);
    EXPECT_EQ(read.Poznamka, dog.Poznamka);
    EXPECT_EQ(read.Chovatel, dog.Chovatel);
    EXPECT_TRUE(read.PrvniUzaverka);
    EXPECT_FALSE(read.PrvniPes);
}

TEST_F(PsiTest, NullFieldsReadAsEmptyAndZero) {
    const int ID = Add("Psi", {{"MajitelID", Value()}, {"Trida", Value()}, {"PrvniPes", Value()}});
    const Psi dog = DogByID(ID).value();
    EXPECT_TRUE(dog.Jmeno.isEmpty());
    EXPECT_FALSE(dog.Cislo);
    EXPECT_FALSE(dog.DatumNar);
    EXPECT_EQ(dog.MajitelID, 0);
    EXPECT_EQ(dog.Trida, 0);
    EXPECT_FALSE(dog.PrvniPes);
    EXPECT_EQ(OwnerOfDog(ID), 0);
    EXPECT_EQ(NumberOfFirstRow(), 0);
}

TEST_F(PsiTest, TextsAreCutAtTheirWidths) {
    Psi dog = SampleDog();
    dog.Jmeno = QString(60, u'ž');
    dog.Otec = dog.Matka = QString(160, u'o');
    dog.ChovnaStanice = dog.PK = dog.Poznamka = dog.Chovatel = QString(160, u'c');
    const Psi read = DogByID(InsertDog(dog)).value();
    EXPECT_EQ(read.Jmeno, QString(50, u'ž'));
    EXPECT_EQ(read.Otec.size(), 100);
    EXPECT_EQ(read.Matka.size(), 100);
    EXPECT_EQ(read.ChovnaStanice.size(), 150);
    EXPECT_EQ(read.PK.size(), 150);
    EXPECT_EQ(read.Poznamka.size(), 150);
    EXPECT_EQ(read.Chovatel.size(), 150);
}

TEST_F(PsiTest, AnUpdateLeavesNumberFirstMarkAndBreedAlone) {
    const int ID = AddDog("Bak", {{"Cislo", 12}, {"PrvniPes", true}, {"PlemenoID", 5}});
    Psi dog = SampleDog();
    dog.ID = ID;
    dog.DatumNar.reset();
    UpdateDog(dog);
    const Psi read = DogByID(ID).value();
    EXPECT_EQ(read.Jmeno, dog.Jmeno);
    EXPECT_FALSE(read.DatumNar);
    EXPECT_EQ(read.Cislo, 12);
    EXPECT_TRUE(read.PrvniPes);
    EXPECT_EQ(read.PlemenoID, 5);
    EXPECT_EQ(CountDogs(), 1);
}

TEST_F(PsiTest, WritingADogThatIsGoneFails) {
    Psi dog = SampleDog();
    dog.ID = 77;
    EXPECT_THROW(UpdateDog(dog), StoreError);
    EXPECT_THROW(MoveDogToBreed(77, 1), StoreError);
    EXPECT_THROW(MarkFirstDog(77), StoreError);
    EXPECT_EQ(CountDogs(), 0);
}

TEST_F(PsiTest, DogsOfAnOwnerComeInTheOrderAsked) {
    const int cyril = AddDog("Cyril", {{"MajitelID", 1}});
    const int chyt = AddDog("Chyť", {{"MajitelID", 1}});
    const int adam = AddDog("Ádám", {{"MajitelID", 1}});
    AddDog("Bob", {{"MajitelID", 2}});
    const int hara = AddDog("Hara", {{"MajitelID", 1}});
    EXPECT_EQ(Jmena(DogsOfOwner(1)), (Texts{"Ádám", "Cyril", "Hara", "Chyť"}));
    Numbers ids;
    for (const Psi& dog : DogsOfOwner(1, DogOrder::ByID))
        ids.push_back(dog.ID);
    EXPECT_EQ(ids, (Numbers{cyril, chyt, adam, hara}));
}

TEST_F(PsiTest, EqualNamesComeInIDOrder) {
    const int first = AddDog("Rek", {{"MajitelID", 1}});
    const int second = AddDog("Rek", {{"MajitelID", 1}});
    const std::vector<Psi> dogs = DogsOfOwner(1);
    ASSERT_EQ(dogs.size(), 2u);
    EXPECT_EQ(dogs[0].ID, first);
    EXPECT_EQ(dogs[1].ID, second);
}

TEST_F(PsiTest, DogsOfABreedComeBySexClassAndName) {
    AddDog("Žofie", {{"PlemenoID", 4}, {"PohlaviPes", false}, {"Trida", 1}});
    AddDog("Rek", {{"PlemenoID", 4}, {"PohlaviPes", true}, {"Trida", 2}});
    AddDog("Jeník", {{"PlemenoID", 4}, {"PohlaviPes", true}, {"Trida", 1}});
    AddDog("Ířa", {{"PlemenoID", 4}, {"PohlaviPes", true}, {"Trida", 1}});
    AddDog("Bez třídy", {{"PlemenoID", 4}, {"PohlaviPes", true}, {"Trida", Value()}});
    AddDog("Cizí", {{"PlemenoID", 3}, {"PohlaviPes", true}});
    const Texts order = {"Bez třídy", "Ířa", "Jeník", "Rek", "Žofie"};
    Texts all = {"Cizí"};
    all.insert(all.end(), order.begin(), order.end());
    EXPECT_EQ(Jmena(DogsByBreed()), all);
    EXPECT_EQ(Jmena(TreeDogsByBreed()), all);
}

TEST_F(PsiTest, ATreeDogHasWhatItsNodeShows) {
    const int ID = AddDog("Rek", {{"PlemenoID", 4},
                                  {"Cislo", 31},
                                  {"Trida", 5},
                                  {"PohlaviPes", true},
                                  {"PrvniUzaverka", true}});
    const TreeDog dog = TreeDogsByBreed().at(0);
    EXPECT_EQ(dog.ID, ID);
    EXPECT_EQ(dog.Cislo, 31);
    EXPECT_EQ(dog.PlemenoID, 4);
    EXPECT_EQ(dog.Trida, 5);
    EXPECT_TRUE(dog.PohlaviPes);
    EXPECT_TRUE(dog.PrvniUzaverka);
    EXPECT_FALSE(dog.PrvniPes);
}

TEST_F(PsiTest, CountsLookAtTheirOwnField) {
    const int ring = Add("Kruhy", {{"Nazev", Text("A")}});
    const int breed = Add("Plemena", {{"ID_Kruhu", ring}, {"FCI", 3}});
    AddDog("a", {{"PlemenoID", breed}, {"Trida", 1}, {"MajitelID", 9}, {"Cislo", 1}});
    AddDog("b", {{"PlemenoID", breed}, {"Trida", 2}, {"MajitelID", 9}, {"Cislo", 0}});
    AddDog("c", {{"PlemenoID", breed + 1}, {"Trida", 1}, {"MajitelID", 8}});
    EXPECT_EQ(CountDogs(), 3);
    EXPECT_EQ(CountNumberedDogs(), 1);
    EXPECT_EQ(CountDogsOfBreed(breed), 2);
    EXPECT_EQ(CountDogsOfClass(breed, 1), 1);
    EXPECT_EQ(CountDogsOfRing(ring), 2);
    EXPECT_EQ(CountDogsOfRing(ring + 1), 0);
    EXPECT_EQ(CountDogsOfFci(3), 2);
    EXPECT_EQ(CountDogsOfFci(4), 0);
    EXPECT_EQ(CountDogsOfOwner(9), 2);
}

TEST_F(PsiTest, TheFirstRowIsTheOneWithTheLowestID) {
    AddDog("a", {{"PlemenoID", 9}, {"Cislo", 5}});
    AddDog("b", {{"PlemenoID", 1}, {"Cislo", 7}});
    EXPECT_EQ(NumberOfFirstRow(), 5);
}

TEST_F(PsiTest, DistinctTextsAreSortedAndKeepTheEmptyOne) {
    AddDog("a", {{"ChovnaStanice", Text("z Hor")}, {"Otec", Text("Čert")}, {"Matka", Text("Ž")}});
    AddDog("b", {{"ChovnaStanice", Text("od Řeky")}, {"Otec", Text("Cár")}, {"Matka", Text("Ž")}});
    AddDog("c", {{"ChovnaStanice", Text("z Hor")}, {"Otec", Text("")}, {"Matka", Text("Z'")}});
    EXPECT_EQ(ToTexts(DistinctKennels()), (Texts{"od Řeky", "z Hor"}));
    EXPECT_EQ(ToTexts(DistinctFathers()), (Texts{"", "Cár", "Čert"}));
    EXPECT_EQ(ToTexts(DistinctMothers()), (Texts{"Z'", "Ž"}));
}

TEST_F(PsiTest, DeletingADogLeavesItsOtherRows) {
    const int ID = AddDog("a");
    const int other = AddDog("b");
    AddLink("PsiVeVystavach", {{"PesID", ID}, {"VystavaID", 1}});
    Add("Uhrady", {{"ID_Psa", ID}, {"Kc", Currency::FromUnits(100)}});
    DeleteDog(ID);
    EXPECT_EQ(Column("SELECT ID FROM Psi"), Texts{std::to_string(other)});
    EXPECT_EQ(Column("SELECT PesID FROM PsiVeVystavach"), Texts{std::to_string(ID)});
    EXPECT_EQ(Column("SELECT COUNT(*) FROM Uhrady"), Texts{"1"});
    DeleteAllDogs();
    EXPECT_EQ(CountDogs(), 0);
}

TEST_F(PsiTest, MarksMoveOnTheirOwnRowsAlone) {
    const int first = AddDog("a", {{"MajitelID", 1}, {"PrvniPes", true}});
    const int second = AddDog("b", {{"MajitelID", 1}});
    const int other = AddDog("c", {{"MajitelID", 2}, {"PrvniPes", true}});
    ClearFirstDogs(1);
    MarkFirstDog(second);
    SetFirstClosing(first, true);
    SetFirstClosing(other, false);
    MoveDogToBreed(second, 42);
    EXPECT_EQ(Column("SELECT PrvniPes FROM Psi"), (Texts{"0", "-1", "-1"}));
    EXPECT_EQ(Column("SELECT PrvniUzaverka FROM Psi"), (Texts{"-1", "0", "0"}));
    EXPECT_EQ(Column("SELECT PlemenoID FROM Psi"), (Texts{"0", "42", "0"}));
}

TEST_F(PsiTest, NumbersAreSetOneByOneAndRemovedTogether) {
    const int a = AddDog("a", {{"Trida", 3}});
    const int b = AddDog("b");
    AddDog("c");
    SetDogNumber(b, 1);
    SetDogNumber(a, 2);
    EXPECT_EQ(Column("SELECT Cislo FROM Psi"), (Texts{"2", "1", ""}));
    EXPECT_EQ(DogByID(a)->Trida, 3);
    RemoveDogNumbers();
    EXPECT_EQ(Column("SELECT Cislo FROM Psi"), (Texts{"0", "0", "0"}));
}

TEST_F(PsiTest, NumbersWrittenBeforeAFailureStay) {
    const int a = AddDog("a");
    AddDog("b");
    EXPECT_THROW(
        {
            EditRun run(TheDataModule().Conn1);
            SetDogNumber(a, 1);
            SetDogNumber(99, 2);
        },
        StoreError);
    EXPECT_EQ(Column("SELECT Cislo FROM Psi"), (Texts{"1", ""}));
}

} // namespace

} // namespace lorvo::test
