// Every habit of the dialect, by what it yields.

#include "platform/values/errors.h"
#include "store/store_test.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class DialectTest : public StoreTest {
  protected:
    DialectTest() {
        database.Execute(R"(
INSERT INTO Majitele (ID, Jmeno, Prijmeni, Mesto) VALUES
    (1, 'Jan', 'Novák', 'Brno'), (2, 'Eva', NULL, 'Praha'), (3, 'Žofie', 'Říhová', NULL);
INSERT INTO Plemena (ID, Nazev, NazevOrig, FCI, Parent, Pouzivat, ID_Kruhu) VALUES
    (784, 'Pointer', 'English Pointer', 7, 0, -1, 1), (949, 'Německý ovčák', NULL, 1, 0, -1, 0),
    (950, 'Welsh corgi', NULL, 1, 0, 0, 0), (1200, 'Černý ŘEK', NULL, 0, 784, NULL, 0);
INSERT INTO Psi (ID, Jmeno, Cislo, PlemenoID, MajitelID, PohlaviPes, Trida, Otec) VALUES
    (1, 'Asta', NULL, 784, 1, 0, 3, 'Rek'), (2, 'Bery', 0, 784, 2, -1, 3, 'rek'),
    (3, 'Cora', 7, 949, 1, NULL, 1, NULL), (4, 'Don''t', 5, 950, 3, 1, NULL, 'Rek');
INSERT INTO PsiVeVystavach VALUES (1, 2), (2, 2), (2, 1), (3, 2);
INSERT INTO Uhrady (ID, ID_Psa, Kc, Datum) VALUES
    (1, 1, 1000000, '2005-05-14T08:00:00'), (2, 1, 5000, '2004-01-02T00:00:00'),
    (3, 2, NULL, NULL), (4, 99, 20000, '2005-05-14T09:30:00');
)");
    }
};

TEST_F(DialectTest, SelectsDogsByAnyFormOfTheStatement) {
    struct Case {
        const char* statement;
        Strings rows;
    };
    const Case cases[] = {
        // the bang, the point, brackets around names, any letter case, odd blanks
        {"SELECT ID FROM Psi WHERE Psi!PlemenoID = 784", {"1", "2"}},
        {"SELECT ID FROM Psi WHERE Psi.PlemenoID = 784", {"1", "2"}},
        {"select [id] from [psi] where [PSI]![plemenoid]=784", {"1", "2"}},
        {"SELECT  ID\n\tFrom  Psi  WHERE ID  =  4 ;", {"4"}},
        // joins of old
        {"SELECT Psi.ID, Majitele.Jmeno From Psi, Plemena, Majitele WHERE (Psi!PlemenoID = "
         "Plemena!ID) AND (Majitele!ID=Psi!MajitelID) AND Plemena!ID_Kruhu = 1",
         {"1|Jan", "2|Eva"}},
        {"SELECT d.ID FROM Psi AS d, Majitele m WHERE d.MajitelID = m.ID AND m.Jmeno = 'Jan'",
         {"1", "3"}},
        {"SELECT Majitele.*, Psi!ID FROM Psi, Majitele WHERE MajitelID = Majitele.ID AND "
         "Psi.ID = 2",
         {"2|Eva|Null|Null|Praha|0|Null|Null|Null|2"}},
        // stored booleans: any non-zero is true, Null is false
        {"SELECT ID FROM Psi WHERE PohlaviPes", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE NOT PohlaviPes", {"1", "3"}},
        {"SELECT ID FROM Psi WHERE NOT PohlaviPes= true", {"1", "3"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes = true", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes =True", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes= TRUE", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes = false", {"1", "3"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes <> true", {"1", "3"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes <> false", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE true = PohlaviPes", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes = 0", {"1", "3"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes IN (true)", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes AND Trida = 3", {"2"}},
        {"SELECT ID FROM Psi WHERE Trida = 3 AND NOT PohlaviPes", {"1"}},
        {"SELECT ID FROM Psi WHERE Otec = 'Rek' AND NOT PohlaviPes= true", {"1"}},
        {"SELECT ID FROM Psi WHERE (PohlaviPes = true) = (Trida = 3)", {"2", "3"}},
        {"SELECT ID FROM Psi WHERE PohlaviPes IS NULL", {"3"}},
        {"SELECT ID FROM Plemena WHERE Parent = 0 AND Pouzivat ORDER BY Nazev Asc", {"949", "784"}},
        // numbers, texts and Null
        {"SELECT ID FROM Psi WHERE Cislo>0", {"3", "4"}},
        {"SELECT ID FROM Psi WHERE NOT (Cislo > 5)", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE Cislo IS NULL", {"1"}},
        {"SELECT ID FROM Psi WHERE NOT( Cislo IS NULL)", {"2", "3", "4"}},
        {"SELECT ID FROM Psi WHERE Cislo IS NOT NULL", {"2", "3", "4"}},
        {"SELECT ID FROM Psi WHERE Cislo > -1", {"2", "3", "4"}},
        {"SELECT ID FROM Psi WHERE Cislo <> 7 OR Trida = 1", {"2", "3", "4"}},
        {"SELECT ID FROM Psi WHERE ID <> 1 AND ID <= 3 AND ID >= 3", {"3"}},
        {"SELECT ID FROM Psi WHERE Otec = 'Rek'", {"1", "4"}}, // equal means the same letters
        {"SELECT ID FROM Psi WHERE Otec = \"rek\"", {"2"}},
        {"SELECT ID FROM Psi WHERE Otec = ''", {}},
        {"SELECT ID FROM Psi WHERE Jmeno = 'Don''t'", {"4"}},
        {"SELECT ID FROM Psi WHERE Jmeno = 'SELECT * FROM Psi WHERE ID=1 -- !'", {}},
        {"SELECT ID FROM Psi WHERE ID IN (2, 4, 6)", {"2", "4"}},
        {"SELECT ID FROM Psi WHERE ID NOT IN (2, 4)", {"1", "3"}},
        {"SELECT ID FROM Psi WHERE PlemenoID IN (SELECT ID FROM Plemena WHERE FCI = 1)",
         {"3", "4"}},
        {"SELECT ID FROM Psi WHERE ID = (SELECT MIN(ID) FROM Psi WHERE PohlaviPes)", {"2"}},
        {"SELECT Jmeno FROM Majitele WHERE ID IN (SELECT MajitelID FROM Psi WHERE Psi.MajitelID = "
         "Majitele.ID AND Cislo > 6)",
         {"Jan"}},
        // lower case of every alphabet
        {"SELECT ID FROM Plemena WHERE LCASE(Nazev) = 'černý řek'", {"1200"}},
        {"SELECT lcase(Nazev) FROM Plemena WHERE ID = 949", {"německý ovčák"}},
        {"SELECT LCase(NazevOrig) FROM Plemena WHERE ID = 949", {"Null"}},
        // TOP
        {"SELECT TOP 5 * FROM Kruhy WHERE ID = 784", {}},
        {"SELECT TOP 2 ID FROM Psi ORDER BY Cislo ASC", {"1", "2"}},
        {"SELECT TOP 1 ID FROM Psi ORDER BY Cislo DESC", {"3"}},
        // DISTINCT
        {"SELECT DISTINCT(VystavaID) FROM PsiVeVystavach WHERE PesID <> 2", {"2"}},
        {"SELECT DISTINCT FCI FROM Plemena WHERE ID  = 949", {"1"}},
        {"SELECT DISTINCT VystavaID FROM PsiVeVystavach", {"1", "2"}},
        {"SELECT DISTINCT Otec FROM Psi ORDER BY Otec", {"Null", "rek", "Rek"}},
        {"SELECT DISTINCT Otec FROM Psi ORDER BY Otec DESC", {"Rek", "rek", "Null"}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(RowsOf(each.statement), each.rows) << each.statement;
}

TEST_F(DialectTest, CountsAndSums) {
    struct Case {
        const char* statement;
        const char* value;
    };
    const Case cases[] = {
        {"SELECT COUNT (*) FROM Psi", "4"},
        {"SELECT COUNT(*) FROM Psi WHERE Cislo>0", "2"},
        {"SELECT count(Cislo) FROM Psi", "3"},
        {"SELECT COUNT (*) FROM Plemena, Psi WHERE Plemena!ID_Kruhu = 1 AND Plemena!ID = "
         "Psi!PlemenoID",
         "2"},
        {"SELECT COUNT (*) FROM Plemena WHERE ID_Kruhu = 5", "0"},
        {"SELECT SUM (Kc) FROM Uhrady WHERE ID_Psa = 1", "100.5"},
        {"SELECT SUM (Kc) FROM Uhrady WHERE ID_Psa = 7", "Null"},
        {"SELECT SUM (Kc) FROM Uhrady WHERE ID_Psa = 2", "Null"},
        {"SELECT SUM (Kc) FROM Uhrady", "102.5"}, // the payment of a deleted dog counts
        {"SELECT SUM (Kc) FROM Uhrady, Psi WHERE ID_Psa = Psi.ID", "100.5"},
        {"SELECT MAX(Kc) FROM Uhrady", "100"},
        {"SELECT MIN(Kc) FROM Uhrady", "0.5"},
        {"SELECT MIN(ID) FROM Psi", "1"},
        {"SELECT MAX(Datum) FROM Uhrady", "2005-05-14T09:30:00"},
        {"SELECT MIN(ID) FROM Kruhy", "Null"},
        {"SELECT SUM(Cislo) FROM Psi", "12"},
        {"SELECT SUM(PohlaviPes) FROM Psi", "-2"},
        {"SELECT ID FROM Uhrady WHERE Kc = 0.5", "2"},
        {"SELECT ID FROM Uhrady WHERE Kc > 99", "1"},
        {"SELECT ID FROM Uhrady WHERE 2 = Kc", "4"},
        {"SELECT ID FROM Uhrady WHERE Kc IN (2, 3)", "4"},
        {"SELECT Uhrady.ID FROM Uhrady, Psi WHERE Kc = Psi.ID AND Psi.ID = 2", "4"},
        {"SELECT COUNT(*) FROM Uhrady WHERE Kc > -1", "3"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(ValueOf(each.statement), each.value) << each.statement;
}

TEST_F(DialectTest, SumsAmountsExactlyAndNeverWrapsAround) {
    database.Execute("DELETE FROM Uhrady;"
                     "INSERT INTO Uhrady (Kc) VALUES (9007199254740993), (1), (-3)");
    module.rsUhrady.Open("SELECT SUM (Kc) FROM Uhrady");
    EXPECT_EQ(module.rsUhrady.Field(0), Value(Currency::FromRaw(9007199254740991)));
    database.Execute("INSERT INTO Uhrady (Kc) VALUES (9223372036854775807)");
    EXPECT_THROW(module.rsUhrady.Open("SELECT SUM (Kc) FROM Uhrady"), StoreError);
}

TEST_F(DialectTest, JoinsTextsByPlusAndNullGivesNull) {
    EXPECT_EQ(RowsOf("SELECT Majitele.Prijmeni + ' ' + Majitele.Jmeno + ', ' + Majitele.Mesto AS "
                     "MajX FROM Majitele"),
              (Strings{"Novák Jan, Brno", "Null", "Null"}));
    EXPECT_EQ(ValueOf("SELECT Jmeno + Mesto FROM Majitele WHERE ID = 1"), "JanBrno");
    EXPECT_EQ(ValueOf("SELECT 'č. ' + Cislo FROM Psi WHERE ID = 3"), "č. 7");
    EXPECT_EQ(ValueOf("SELECT Cislo + 1 FROM Psi WHERE ID = 3"), "8");
    EXPECT_EQ(ValueOf("SELECT ID FROM Psi WHERE Cislo - 2 + ID = 8"), "3");
}

TEST_F(DialectTest, NamesFieldsByAliasOrByThemselves) {
    RecordSet& set = module.rsUhrady;
    set.Open("SELECT Uhrady.ID AS UID, Uhrady.id_psa, Kc FROM Uhrady WHERE id = 1");
    EXPECT_EQ(set.Field("uid").ToInt(), 1);
    EXPECT_EQ(set.Field("ID_Psa").ToInt(), 1);
    EXPECT_EQ(set.Field("KC").ToCurrency(), Currency::FromUnits(100));
}

TEST_F(DialectTest, KnowsNamesWithAccentsInAnyLetterCase) {
    database.Execute("CREATE TABLE Třídy (ID INTEGER PRIMARY KEY, Označení TEXT);"
                     "INSERT INTO Třídy VALUES (1, 'mladých')");
    database.Reopen();
    module.rsrsQuery1.Open("SELECT OZNAČENÍ FROM třídy WHERE TŘÍDY!označení = 'mladých'");
    EXPECT_EQ(module.rsrsQuery1.Field("označenÍ").ToText(), u"mladých"_s);
}

TEST_F(DialectTest, DeletesWithOrWithoutTheStar) {
    RowsOf("SELECT * FROM Psi");
    module.rsPsi.Open("DELETE * FROM Psi WHERE Psi!ID = 1");
    module.rsPsi.Open("delete from psi where ID = 2");
    EXPECT_EQ(RowsOf("SELECT ID FROM Psi"), (Strings{"3", "4"}));
    module.rsPsi.Open("DELETE * FROM Psi WHERE PohlaviPes");
    EXPECT_EQ(RowsOf("SELECT ID FROM Psi"), (Strings{"3"}));
    module.rsPsi.Open("DELETE * FROM Psi");
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Psi"), "0");
    // What belonged to the dogs stays behind.
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM PsiVeVystavach"), "4");
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Uhrady"), "4");
}

TEST_F(DialectTest, RefusesWhatIsNoStatement) {
    const char* statements[] = {
        "",
        "SELECT",
        "SELECT * FROM",
        "SELECT * Psi",
        "SELECT FROM Psi",
        "SELECT ID, FROM Psi",
        "SELECT * FROM Psi WHERE",
        "SELECT * FROM Psi WHERE ID =",
        "SELECT * FROM Psi WHERE ID = = 1",
        "SELECT * FROM Psi WHERE (ID = 1",
        "SELECT * FROM Psi WHERE ID = 1)",
        "SELECT * FROM Psi ORDER Jmeno",
        "SELECT * FROM Psi ORDER BY",
        "SELECT * FROM Psi ORDER BY 1",
        "SELECT * FROM Psi; SELECT * FROM Psi",
        "SELECT TOP * FROM Psi",
        "SELECT TOP 1.5 * FROM Psi",
        "SELECT * FROM Psi WHERE Jmeno = 'O'Hara'",
        "SELECT * FROM Psi WHERE Jmeno = 'bez konce",
        "SELECT * FROM [Psi WHERE ID = 1",
        "SELECT * FROM Psi WHERE ID = 1x",
        "SELECT * FROM Psi WHERE ID = 99999999999999999999",
        "SELECT * FROM Psi WHERE ID = ?",
        "SELECT * FROM Psi WHERE Jmeno",
        "SELECT * FROM Psi WHERE ID IN (SELECT * FROM Psi)",
        "SELECT Kc + 1 FROM Uhrady",
        "SELECT Jmeno - 'a' FROM Psi",
        "SELECT SUM(Jmeno) FROM Psi",
        "SELECT SUM(*) FROM Psi",
        "SELECT SOUCET(ID) FROM Psi",
        "SELECT load_extension('x') FROM Psi",
        "SELECT ID FROM Psi, Plemena",
        "DELETE * FROM Psi, Plemena",
        "DELETE ID FROM Psi",
        "UPDATE Psi SET Jmeno = 'x'",
        "DROP TABLE Psi",
        "PRAGMA journal_mode",
        "SELECT * FROM sqlite_schema",
        "SELECT Plemena.* FROM Psi",
        "SELECT -Jmeno FROM Psi",
        "SELECT * FROM Psi WHERE ID IN (SELECT Kc FROM Uhrady)",
    };
    for (const char* statement : statements)
        EXPECT_THROW(module.rsrsQuery1.Open(statement), StoreError) << statement;
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Psi"), "4");
}

TEST_F(DialectTest, NamesTheUnknownFieldOrTable) {
    const auto failureOf = [this](const char* statement) {
        return FailureOf([&] { module.rsrsQuery1.Open(statement); });
    };
    EXPECT_NE(failureOf("SELECT PoplatkyIClass0D1 FROM Vystavy").find("PoplatkyIClass0D1"),
              std::string::npos);
    EXPECT_NE(failureOf("SELECT * FROM Psi WHERE Psi!Nic = 1").find("Psi.Nic"), std::string::npos);
    EXPECT_NE(failureOf("SELECT * FROM Nic").find("Nic"), std::string::npos);
    EXPECT_NE(failureOf("SELECT * FROM Psi ORDER BY Nic").find("Nic"), std::string::npos);
}

TEST_F(DialectTest, SurvivesDeepNestingAndLongChains) {
    const std::string deep = "SELECT ID FROM Psi WHERE " + std::string(100000, '(') + "ID = 1" +
                             std::string(100000, ')');
    EXPECT_THROW(module.rsrsQuery1.Open(deep), StoreError);
    std::string nots = "SELECT ID FROM Psi WHERE ";
    for (int i = 0; i < 100000; ++i)
        nots += "NOT ";
    EXPECT_THROW(module.rsrsQuery1.Open(nots + "PohlaviPes"), StoreError);
    std::string list = "SELECT ID FROM Psi WHERE ID IN (0";
    for (int i = 1; i <= 5000; ++i)
        list += ", " + std::to_string(i);
    EXPECT_EQ(RowsOf(list + ")").size(), 4U);
    std::string chain = "SELECT ID FROM Psi WHERE ID = 1";
    for (int i = 0; i < 500; ++i)
        chain += " OR ID = 2";
    EXPECT_EQ(RowsOf(chain), (Strings{"1", "2"}));
}

TEST_F(DialectTest, OneShapeServesManyValues) {
    for (int id = 1; id <= 4; ++id)
        EXPECT_EQ(ValueOf("SELECT ID FROM Psi WHERE ID = " + Number(id)), std::to_string(id));
    EXPECT_EQ(ValueOf("SELECT ID FROM Psi WHERE Jmeno = 'Asta'"), "1");
    EXPECT_EQ(ValueOf("SELECT ID FROM Psi WHERE Jmeno = 'Bery'"), "2");
    EXPECT_EQ(RowsOf("SELECT TOP 1 ID FROM Psi").size(), 1U);
    EXPECT_EQ(RowsOf("SELECT TOP 3 ID FROM Psi").size(), 3U);
    EXPECT_EQ(ValueOf("SELECT ID FROM Uhrady WHERE Kc = 2"), "4");
    EXPECT_EQ(ValueOf("SELECT ID FROM Uhrady WHERE Kc = 100"), "1");
}

} // namespace
} // namespace lorvo
