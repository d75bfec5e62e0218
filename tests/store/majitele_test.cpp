#include "store/majitele.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

class MajiteleTest : public RoutinesTest {
  protected:
    static Majitele SampleOwner() {
        Majitele owner;
        owner.Jmeno = Text("Dana O'Connor");
        owner.Prijmeni = Text("Řehořová");
        owner.Ulice = Text("Úzká 3");
        owner.Mesto = Text("Zlín");
        owner.PSC = 76001;
        owner.Telefon = Text("+420 777");
        owner.Email = Text("dana@example.cz");
        return owner;
    }
};

TEST_F(MajiteleTest, AStoredOwnerReadsBackWhole) {
    const Majitele owner = SampleOwner();
    const int ID = InsertOwner(owner);
    const Majitele read = OwnerByID(ID).value();
    EXPECT_EQ(read.ID, ID);
    EXPECT_EQ(read.Jmeno, owner.Jmeno);
    EXPECT_EQ(read.Prijmeni, owner.Prijmeni);
    EXPECT_EQ(read.Ulice, owner.Ulice);
    EXPECT_EQ(read.Mesto, owner.Mesto);
    EXPECT_EQ(read.PSC, 76001);
    EXPECT_EQ(read.Telefon, owner.Telefon);
    EXPECT_EQ(read.Email, owner.Email);
    EXPECT_FALSE(read.Stat);
    EXPECT_FALSE(OwnerByID(ID + 1));
    EXPECT_THROW(ExistingOwner(ID + 1), StoreError);
}

TEST_F(MajiteleTest, AFieldThatIsNotGivenStaysAsItIs) {
    Majitele owner = SampleOwner();
    owner.Prijmeni.reset();
    owner.ID = InsertOwner(owner);
    EXPECT_TRUE(IsNull("SELECT Prijmeni FROM Majitele"));
    owner.Stat = Text("Česko");
    UpdateOwner(owner);
    owner.Stat.reset();
    owner.Prijmeni = Text("Nová");
    UpdateOwner(owner);
    const Majitele read = OwnerByID(owner.ID).value();
    EXPECT_EQ(read.Stat, Text("Česko"));
    EXPECT_EQ(read.Prijmeni, Text("Nová"));
}

TEST_F(MajiteleTest, AnUpdateOfAMissingOwnerFails) {
    Majitele owner = SampleOwner();
    owner.ID = 5;
    EXPECT_THROW(UpdateOwner(owner), StoreError);
    EXPECT_TRUE(OwnersByName().empty());
}

TEST_F(MajiteleTest, OwnersComeInCzechOrder) {
    Add("Majitele", {{"Jmeno", Text("Chalupa")}, {"Mesto", Text("Brno")}});
    Add("Majitele", {{"Jmeno", Text("Hora")}, {"Prijmeni", Text("Š")}});
    Add("Majitele", {{"Jmeno", Text("Cibulka")}});
    Add("Majitele", {{"Jmeno", Text("Hora")}, {"Prijmeni", Text("S")}});
    Add("Majitele", {{"Jmeno", Text("Čada")}});
    EXPECT_EQ(Jmena(OwnersByName()), (Texts{"Cibulka", "Čada", "Hora", "Hora", "Chalupa"}));
    EXPECT_EQ(OwnersByName()[2].Prijmeni, Text("Š"));
    EXPECT_EQ(OwnersByNameAndSurname()[2].Prijmeni, Text("S"));
    const std::vector<OwnerName> names = OwnerNamesByName();
    EXPECT_EQ(Jmena(names), Jmena(OwnersByName()));
    EXPECT_EQ(names.back().Mesto, u"Brno");
    EXPECT_TRUE(names.front().Mesto.isEmpty());
}

TEST_F(MajiteleTest, TheMapsHoldAgainstTheSingleReads) {
    const int a = Add("Majitele", {{"Jmeno", Text("A")}});
    const int b = Add("Majitele", {{"Jmeno", Value()}, {"PSC", Value()}});
    const auto owners = OwnersByID();
    const auto names = OwnerNames();
    ASSERT_EQ(owners.size(), 2u);
    ASSERT_EQ(names.size(), 2u);
    for (const int ID : {a, b}) {
        EXPECT_EQ(owners.at(ID).Jmeno, OwnerByID(ID)->Jmeno);
        EXPECT_EQ(names.at(ID), OwnerByID(ID)->Jmeno);
    }
    EXPECT_EQ(owners.at(b).PSC, 0);
}

TEST_F(MajiteleTest, ANameIsFoundByItsCharacters) {
    InsertOwner(SampleOwner());
    EXPECT_EQ(OwnersNamed(Text("Dana O'Connor")).size(), 1u);
    EXPECT_TRUE(OwnersNamed(Text("dana o'connor")).empty());
    EXPECT_TRUE(OwnersNamed(Text("Dana O'Connor ")).empty());
    EXPECT_TRUE(OwnersNamed(Text("x' OR '1'='1")).empty());
}

TEST_F(MajiteleTest, DeletingTakesTheRowAlone) {
    const int ID = InsertOwner(SampleOwner());
    const int other = InsertOwner(SampleOwner());
    Add("Psi", {{"MajitelID", ID}});
    DeleteOwner(ID);
    EXPECT_EQ(Column("SELECT ID FROM Majitele"), Texts{std::to_string(other)});
    EXPECT_EQ(Column("SELECT MajitelID FROM Psi"), Texts{std::to_string(ID)});
    DeleteAllOwners();
    EXPECT_EQ(Column("SELECT COUNT(*) FROM Majitele"), Texts{"0"});
}

} // namespace

} // namespace lorvo::test
