
#include "platform/values/errors.h"
#include "store/store_test.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class RecordSetTest : public StoreTest {
  protected:
    /// A dog with a name; its ID.
    int AddDog(const QString& name) {
        RecordSet& set = module.rsPsi;
        set.Open("SELECT * FROM Psi");
        set.AddNew();
        set.Set("Jmeno", name);
        set.Update();
        const int id = set.Field("ID").ToInt();
        set.Close();
        return id;
    }
};

TEST_F(RecordSetTest, StandsOnTheFirstRowAndWalksToTheEnd) {
    AddDog(u"Asta"_s);
    AddDog(u"Bery"_s);
    module.rsPsi.Open("SELECT * FROM Psi");
    EXPECT_EQ(module.rsPsi.RecordCount(), 2);
    EXPECT_EQ(module.rsPsi.Field("Jmeno").ToText(), u"Asta"_s);
    module.rsPsi.MoveNext();
    EXPECT_EQ(module.rsPsi.Field("Jmeno").ToText(), u"Bery"_s);
    EXPECT_FALSE(module.rsPsi.Eof());
    module.rsPsi.MoveNext();
    EXPECT_TRUE(module.rsPsi.Eof());
    EXPECT_THROW(module.rsPsi.Field("Jmeno"), StoreError);
    EXPECT_THROW(module.rsPsi.MoveNext(), StoreError);
}

TEST_F(RecordSetTest, KnowsFieldsByNameInAnyLetterCaseAndByPosition) {
    AddDog(u"Asta"_s);
    module.rsPsi.Open("SELECT ID, jMENO FROM pSI");
    EXPECT_EQ(module.rsPsi.Field("JMENO").ToText(), u"Asta"_s);
    EXPECT_EQ(module.rsPsi.Field(1).ToText(), u"Asta"_s);
    EXPECT_THROW(module.rsPsi.Field(2), StoreError);
    EXPECT_THROW(module.rsPsi.Field(-1), StoreError);
    EXPECT_NE(FailureOf([&] { module.rsPsi.Field("Barva"); }).find("Barva"), std::string::npos);
}

TEST_F(RecordSetTest, GivesTheFirstOfSeveralFieldsOfOneName) {
    const int dog = AddDog(u"Asta"_s);
    database.Execute("INSERT INTO Majitele (ID, Jmeno) VALUES (70, 'Jan');"
                     "UPDATE Psi SET MajitelID = 70");
    module.rsPsi.Open("SELECT Psi.ID, Majitele.ID, Majitele.Jmeno FROM Psi, Majitele "
                      "WHERE Psi!MajitelID = Majitele!ID");
    EXPECT_EQ(module.rsPsi.Field("ID").ToInt(), dog);
    EXPECT_EQ(module.rsPsi.Field("Majitele.ID").ToInt(), 70);
}

TEST_F(RecordSetTest, OpensEmptySets) {
    module.rsPsi.Open("SELECT * FROM Psi");
    EXPECT_EQ(module.rsPsi.RecordCount(), 0);
    EXPECT_TRUE(module.rsPsi.Eof());
}

TEST_F(RecordSetTest, ReadsTheNewIDRightBehindTheUpdate) {
    EXPECT_EQ(AddDog(u"Asta"_s), 1);
    EXPECT_EQ(AddDog(u"Bery"_s), 2);
    module.rsPsi.Open("DELETE * FROM Psi WHERE ID = 2");
    EXPECT_EQ(AddDog(u"Cora"_s), 3); // never given twice
}

TEST_F(RecordSetTest, AddsANewRowToTheOpenSetWithTheDefaultsOfTheTable) {
    module.rsPsi.Open("SELECT * FROM Psi");
    module.rsPsi.AddNew();
    module.rsPsi.Update();
    EXPECT_EQ(module.rsPsi.RecordCount(), 1);
    EXPECT_EQ(module.rsPsi.Field("Trida").ToInt(), 0);
    EXPECT_FALSE(module.rsPsi.Field("Trida").IsNull());
    EXPECT_TRUE(module.rsPsi.Field("Cislo").IsNull());
    EXPECT_FALSE(module.rsPsi.Field("PrvniPes").ToBool());
}

TEST_F(RecordSetTest, AddsRowsToATableWithoutAnID) {
    module.rsOstatni.Open("SELECT DatumVystavy FROM Ostatni");
    module.rsOstatni.AddNew();
    module.rsOstatni.Update();
    EXPECT_TRUE(module.rsOstatni.Field("DatumVystavy").IsNull());
    module.rsOstatni.Set("DatumVystavy", DateValue::FromCalendar(2005, 5, 14));
    module.rsOstatni.Update();
    module.rsOstatni.Open("SELECT * FROM Ostatni");
    EXPECT_EQ(module.rsOstatni.Field(0).ToDate(), DateValue::FromCalendar(2005, 5, 14));
}

TEST_F(RecordSetTest, ChangesOnlyTheCurrentRow) {
    AddDog(u"Asta"_s);
    AddDog(u"Bery"_s);
    module.rsPsi.Open("SELECT * FROM Psi ORDER BY Jmeno DESC");
    module.rsPsi.Set("Cislo", 7);
    EXPECT_EQ(module.rsPsi.Field("Cislo").ToInt(), 7);
    module.rsPsi.Update();
    module.rsPsi.Open("SELECT Jmeno FROM Psi WHERE Cislo = 7");
    EXPECT_EQ(module.rsPsi.RecordCount(), 1);
    EXPECT_EQ(module.rsPsi.Field(0).ToText(), u"Bery"_s);
}

TEST_F(RecordSetTest, RefusesToWalkOnFromAnUnsavedEdit) {
    AddDog(u"Asta"_s);
    module.rsPsi.Open("SELECT * FROM Psi");
    module.rsPsi.Set("Cislo", 7);
    EXPECT_THROW(module.rsPsi.MoveNext(), StoreError);
}

TEST_F(RecordSetTest, ADeletionLeavesTheSetShut) {
    AddDog(u"Asta"_s);
    AddDog(u"Bery"_s);
    module.rsPsi.Open("DELETE * FROM Psi WHERE ID = 1");
    EXPECT_THROW(module.rsPsi.Eof(), StoreError);
    module.rsPsi.Open("SELECT * FROM Psi");
    EXPECT_EQ(module.rsPsi.RecordCount(), 1);
}

TEST_F(RecordSetTest, OpenClosesASetThatAFailureLeftOpen) {
    AddDog(u"Asta"_s);
    module.rsPsi.Open("SELECT * FROM Psi");
    module.rsPsi.AddNew();
    module.rsPsi.Open("SELECT COUNT(*) FROM Psi");
    EXPECT_EQ(module.rsPsi.Field(0).ToInt(), 1);
    EXPECT_THROW(module.rsPsi.Open("SELECT Nic FROM Psi"), StoreError);
    EXPECT_THROW(module.rsPsi.Eof(), StoreError);
}

TEST_F(RecordSetTest, IsStaticAgainstLaterEdits) {
    AddDog(u"Asta"_s);
    module.rsPsi.Open("SELECT * FROM Psi");
    module.rsrsQuery1.Open("DELETE * FROM Psi");
    EXPECT_EQ(module.rsPsi.RecordCount(), 1);
    EXPECT_EQ(module.rsPsi.Field("Jmeno").ToText(), u"Asta"_s);
    module.rsPsi.Set("Cislo", 7);
    EXPECT_THROW(module.rsPsi.Update(), StoreError); // the row is gone
}

TEST_F(RecordSetTest, TakesEditsOnlyFromAPlainSelectOnAnUpdatableSet) {
    AddDog(u"Asta"_s);
    module.rsPsi.Open("SELECT COUNT(*) FROM Psi");
    EXPECT_THROW(module.rsPsi.AddNew(), StoreError);
    module.rsPsi.Open("SELECT DISTINCT Otec FROM Psi");
    EXPECT_THROW(module.rsPsi.Set("Otec", u"Rek"_s), StoreError);
    module.rsPsi.Open("SELECT Psi.ID FROM Psi, Plemena");
    EXPECT_THROW(module.rsPsi.AddNew(), StoreError);
    module.rsVazby_Trida.Open("SELECT * FROM Vazby_Trida");
    EXPECT_THROW(module.rsVazby_Trida.AddNew(), StoreError);
    EXPECT_THROW(module.rsrsQuery2.Open("DELETE * FROM Psi"), StoreError);
}

TEST_F(RecordSetTest, ConvertsToTheTypeOfTheField) {
    AddDog(u"Asta"_s);
    module.rsPsi.Open("SELECT * FROM Psi");
    module.rsPsi.Set("PohlaviPes", 1);
    module.rsPsi.Set("PrvniPes", true);
    module.rsPsi.Set("Trida", u" 12 "_s);
    module.rsPsi.Set("DatumNar", 0);
    module.rsPsi.Set("Poznamka", 5);
    module.rsPsi.Update();
    EXPECT_EQ(module.rsPsi.Field("PohlaviPes"), Value(true));
    EXPECT_EQ(module.rsPsi.Field("Trida"), Value(12));
    EXPECT_EQ(module.rsPsi.Field("DatumNar"), Value(DateValue()));
    EXPECT_EQ(module.rsPsi.Field("Poznamka"), Value(u"5"_s));
    // In the file true is -1, so that it sorts before false.
    module.rsPsi.Open("SELECT SUM(PohlaviPes) FROM Psi");
    EXPECT_EQ(module.rsPsi.Field(0).ToInt(), -1);
}

TEST_F(RecordSetTest, StoresAmountsExactlyFromTextAndFromNumbers) {
    module.rsSouteze.Open("SELECT * FROM Souteze");
    module.rsSouteze.AddNew();
    module.rsSouteze.Set("Cena", u"1234,5678"_s);
    module.rsSouteze.Update();
    EXPECT_EQ(module.rsSouteze.Field("Cena"), Value(Currency::FromRaw(12345678)));
    module.rsSouteze.Set("Cena", 300);
    module.rsSouteze.Update();
    EXPECT_EQ(module.rsSouteze.Field("Cena"), Value(Currency::FromUnits(300)));
    module.rsSouteze.Set("Cena", QString()); // an emptied box
    module.rsSouteze.Update();
    EXPECT_TRUE(module.rsSouteze.Field("Cena").IsNull());
}

TEST_F(RecordSetTest, AnAmountThatIsATextInTheFileFailsOnlyWhereItIsRead) {
    database.Execute("INSERT INTO Vystavy (Nazev, PoplatkyIClass1D1) VALUES ('a', 'zdarma')");
    module.rsVystavy.Open("SELECT * FROM Vystavy");
    EXPECT_EQ(module.rsVystavy.Field("Nazev"), Value(u"a"_s));
    EXPECT_FALSE(module.rsVystavy.IsNumeric("PoplatkyIClass1D1"));
    EXPECT_THROW(module.rsVystavy.Field("PoplatkyIClass1D1"), StoreError);
}

TEST_F(RecordSetTest, ADayThatAnotherProgramLeftAsItsNumberIsRead) {
    database.Execute("INSERT INTO Psi (Jmeno, DatumNar) VALUES ('Asta', 38000)");
    module.rsPsi.Open("SELECT * FROM Psi");
    EXPECT_EQ(module.rsPsi.Field("DatumNar"), Value(Value(38000).ToDate()));
}

TEST_F(RecordSetTest, ATextThatAnotherProgramLeftInANumbersPlaceIsNamed) {
    database.Execute("INSERT INTO Psi (Jmeno, Trida) VALUES ('Asta', 'otevřená')");
    try {
        module.rsPsi.Open("SELECT * FROM Psi");
        FAIL() << "read as a number";
    } catch (const StoreError& error) {
        EXPECT_NE(std::string(error.what()).find("pole Trida: \"otevřená\" není číslo"),
                  std::string::npos)
            << error.what();
    }
}

TEST_F(RecordSetTest, NamesTheFieldThatAValueDoesNotFit) {
    struct Case {
        const char* field;
        Value value;
    };
    const Case cases[] = {
        {"Trida", u"tři"_s},      {"Trida", u"99999999999"_s}, {"MajitelID", qint64{1} << 40},
        {"DatumNar", u"včera"_s}, {"DatumNar", 99999999},      {"Jmeno", QString(256, u'a')}};
    module.rsPsi.Open("SELECT * FROM Psi");
    module.rsPsi.AddNew();
    for (const Case& each : cases)
        EXPECT_NE(FailureOf([&] { module.rsPsi.Set(each.field, each.value); }).find(each.field),
                  std::string::npos);
    module.rsVystavy.Open("SELECT * FROM Vystavy");
    module.rsVystavy.AddNew();
    EXPECT_THROW(module.rsVystavy.Set("PoplatkyIClass1D1", u"zdarma"_s), StoreError);
}

TEST_F(RecordSetTest, KeepsNullApartFromAnEmptyText) {
    AddDog(QString(u""_s));
    module.rsPsi.Open("SELECT Jmeno, Otec FROM Psi WHERE Otec IS NULL AND NOT (Jmeno IS NULL)");
    ASSERT_EQ(module.rsPsi.RecordCount(), 1);
    EXPECT_FALSE(module.rsPsi.Field(0).IsNull());
    EXPECT_TRUE(module.rsPsi.Field(1).IsNull());
    EXPECT_EQ(module.rsPsi.Field(1).ToText(), QString());
    module.rsPsi.Set("Jmeno", Value());
    module.rsPsi.Update();
    EXPECT_TRUE(module.rsPsi.Field("Jmeno").IsNull());
}

TEST_F(RecordSetTest, KeepsAnyTextAsItIs) {
    const QString texts[] = {u"O'Hara"_s,        u"\"Rek\" z Dvora; --"_s, u"Ňuf 'ch' ŘŽ"_s,
                             u"řádek\njiný\t"_s, QString(255, u'ž'),       u"\U0001F415"_s};
    for (const QString& text : texts) {
        const int id = AddDog(text);
        module.rsPsi.Open("SELECT * FROM Psi WHERE Jmeno = " + Quoted(text));
        ASSERT_EQ(module.rsPsi.RecordCount(), 1);
        EXPECT_EQ(module.rsPsi.Field("ID").ToInt(), id);
        EXPECT_EQ(module.rsPsi.Field("Jmeno").ToText(), text);
    }
}

TEST_F(RecordSetTest, AFailedUpdateLeavesTheSetUsable) {
    AddDog(u"Asta"_s);
    module.rsPsi.Open("SELECT * FROM Psi");
    module.rsPsi.AddNew();
    module.rsPsi.Set("ID", 1); // there is one already
    EXPECT_THROW(module.rsPsi.Update(), StoreError);
    EXPECT_EQ(module.rsPsi.RecordCount(), 1);
    EXPECT_EQ(module.rsPsi.Field("Jmeno").ToText(), u"Asta"_s);
}

TEST_F(RecordSetTest, NeedsAnOpenConnection) {
    module.Conn1.Close();
    EXPECT_THROW(module.rsPsi.Open("SELECT * FROM Psi"), StoreError);
    module.Conn1.Open(database.Path());
}

} // namespace
} // namespace lorvo
