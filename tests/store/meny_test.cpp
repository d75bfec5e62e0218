#include "store/meny.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

class MenyTest : public RoutinesTest {
  protected:
    static int AddCurrency(const char* nazev, const char* zkratka, bool hlavni = false) {
        return Add("Meny",
                   {{"Nazev", Text(nazev)}, {"Zkratka", Text(zkratka)}, {"Hlavni", hlavni}});
    }
    static Texts Marks() { return Column("SELECT Hlavni FROM Meny"); }
};

TEST_F(MenyTest, AStoredCurrencyReadsBackWhole) {
    Meny currency{0, Text("Euro 'EU'"), Text("€"), Currency::FromRaw(251234), true};
    currency.ID = InsertCurrency(currency);
    Meny read = CurrencyByID(currency.ID).value();
    EXPECT_EQ(read.Nazev, currency.Nazev);
    EXPECT_EQ(read.Zkratka, currency.Zkratka);
    EXPECT_EQ(read.Kurs, currency.Kurs);
    EXPECT_TRUE(read.Hlavni);
    currency.Kurs = Currency::FromUnits(-3);
    currency.Hlavni = false;
    UpdateCurrency(currency);
    read = CurrencyByID(currency.ID).value();
    EXPECT_EQ(read.Kurs, currency.Kurs);
    EXPECT_FALSE(read.Hlavni);
    EXPECT_EQ(CountCurrencies(), 1);
}

TEST_F(MenyTest, NullFieldsReadAsEmptyZeroAndFalse) {
    const Meny currency = CurrencyByID(Add("Meny", {{"Hlavni", Value()}})).value();
    EXPECT_TRUE(currency.Nazev.isEmpty());
    EXPECT_TRUE(currency.Zkratka.isEmpty());
    EXPECT_EQ(currency.Kurs, Currency());
    EXPECT_FALSE(currency.Hlavni);
    EXPECT_TRUE(MainCurrencies().empty());
}

TEST_F(MenyTest, MainCurrenciesComeInIDOrder) {
    AddCurrency("Zloty", "zł", true);
    AddCurrency("Euro", "€");
    AddCurrency("Koruna", "Kč", true);
    EXPECT_EQ(Nazvy(MainCurrencies()), (Texts{"Zloty", "Koruna"}));
    EXPECT_EQ(Nazvy(Currencies()), (Texts{"Zloty", "Euro", "Koruna"}));
}

TEST_F(MenyTest, AnAbbreviationIsFoundByItsCharacters) {
    AddCurrency("Koruna", "Kč");
    AddCurrency("Prázdná", "");
    Add("Meny", {{"Nazev", Text("Null")}});
    EXPECT_EQ(Nazvy(CurrenciesAbbreviated(Text("Kč"))), Texts{"Koruna"});
    EXPECT_EQ(Nazvy(CurrenciesAbbreviated(Text(""))), Texts{"Prázdná"});
    EXPECT_TRUE(CurrenciesAbbreviated(Text("K'č")).empty());
}

TEST_F(MenyTest, TheMainMarkIsSetOnOneRow) {
    const int first = AddCurrency("a", "a");
    AddCurrency("b", "b", true);
    SetMainMark(first, true);
    EXPECT_EQ(Marks(), (Texts{"-1", "-1"}));
    SetMainMark(first, false);
    EXPECT_EQ(Marks(), (Texts{"0", "-1"}));
}

TEST_F(MenyTest, OthersLoseTheMainMarkByTheirName) {
    AddCurrency("Koruna", "Kč", true);
    AddCurrency("Euro", "€", true);
    AddCurrency("Koruna", "SKK", true);
    AddCurrency("koruna", "x", true);
    ClearMainMarkExceptNamed(Text("Koruna"));
    EXPECT_EQ(Marks(), (Texts{"-1", "0", "-1", "0"}));
    ClearMainMarkExceptNamed(Text("d'or"));
    EXPECT_EQ(Marks(), (Texts{"0", "0", "0", "0"}));
}

TEST_F(MenyTest, CurrenciesAreDeletedOneByOneOrAll) {
    const int first = AddCurrency("a", "a");
    AddCurrency("b", "b");
    DeleteCurrency(first);
    EXPECT_EQ(Nazvy(Currencies()), Texts{"b"});
    EXPECT_FALSE(CurrencyByID(first));
    EXPECT_THROW(ExistingCurrency(first), StoreError);
    DeleteAllCurrencies();
    EXPECT_EQ(CountCurrencies(), 0);
}

} // namespace

} // namespace lorvo::test
