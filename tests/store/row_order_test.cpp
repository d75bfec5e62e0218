// In which order rows come, and that no index ever shows in it.

#include "store/czech_order.h"
#include "store/store_test.h"

#include <algorithm>

namespace lorvo {
namespace {

TEST(CzechKeyTest, FollowsTheCzechAlphabet) {
    const Strings alphabet = {"",  "1", "9", "a", "á", "aa", "b",  "c",  "cz", "č",  "ča",  "d",
                              "ď", "e", "é", "ě", "f", "h",  "hž", "ch", "Ch", "CH", "cha", "i",
                              "í", "n", "ň", "o", "ó", "r",  "rz", "ř",  "s",  "sz", "š",   "t",
                              "ť", "u", "ú", "ů", "y", "ý",  "z",  "zz", "ž"};
    for (std::size_t i = 1; i < alphabet.size(); ++i)
        EXPECT_LT(CzechKey(alphabet[i - 1]), CzechKey(alphabet[i]))
            << alphabet[i - 1] << " before " << alphabet[i];
}

TEST(CzechKeyTest, LetterCaseAndDiacriticsOnlyBreakTies) {
    const Strings words = {"abc", "Abc", "ábc", "Ábc", "abd"};
    for (std::size_t i = 1; i < words.size(); ++i)
        EXPECT_LT(CzechKey(words[i - 1]), CzechKey(words[i]))
            << words[i - 1] << " before " << words[i];
}

TEST(CzechKeyTest, TakesTextsOfAnyLengthAndBrokenOnes) {
    const std::string longText(5000, 'a');
    EXPECT_LT(CzechKey(longText), CzechKey(longText + 'b'));
    EXPECT_LT(CzechKey("\xC3\x28\xFF"), CzechKey("\xC3\x28\xFFz"));
}

TEST(CzechKeyTest, IsTheSameOfATextInTheProgramsOwnForm) {
    for (const std::string& text : {std::string(), std::string("Řek"), std::string("D'Art š ch"),
                                    std::string(5000, 'a'), std::string("\xF0\x9F\x90\xB6")})
        EXPECT_EQ(CzechKey(QString::fromStdString(text)), CzechKey(text)) << text;
}

TEST(CompareCzechTest, AgreesWithTheKeys) {
    const Strings words = {"",    "a",   "á",  "A",     "Alík", "alík",  "Álík", "b",   "c",
                           "cz",  "č",   "h",  "hugo",  "ch",   "Chvat", "i",    "Rek", "Řek",
                           "řek", "r k", "rk", "D'Art", "dart", "ž",     "1",    "10",  "9"};
    const auto sign = [](int number) {
        return (number > 0) - (number < 0);
    };
    for (const std::string& left : words)
        for (const std::string& right : words)
            EXPECT_EQ(
                sign(CompareCzech(QString::fromStdString(left), QString::fromStdString(right))),
                sign(CzechKey(left).compare(CzechKey(right))))
                << left << " and " << right;
}

class RowOrderTest : public StoreTest {
  protected:
    /// Statements whose order is to be the same with any index or none.
    static Strings AllOrders() {
        Strings all;
        for (const char* statement :
             {"SELECT ID FROM Psi", "SELECT ID FROM Psi WHERE PlemenoID = 2",
              "SELECT ID FROM Psi WHERE PlemenoID > 0",
              "SELECT ID FROM Psi WHERE PlemenoID IN (3, 1)",
              "SELECT ID FROM Psi ORDER BY PlemenoID", "SELECT ID FROM Psi ORDER BY PlemenoID DESC",
              "SELECT ID FROM Psi ORDER BY Jmeno, PlemenoID", "SELECT Jmeno FROM Psi",
              "SELECT TOP 3 ID FROM Psi WHERE MajitelID > 0",
              "SELECT PesID, VystavaID FROM PsiVeVystavach",
              "SELECT PesID FROM PsiVeVystavach WHERE VystavaID = 1",
              "SELECT PesID FROM PsiVeVystavach ORDER BY VystavaID",
              "SELECT DISTINCT PesID FROM PsiVeVystavach", "SELECT DISTINCT Jmeno FROM Psi",
              "SELECT Psi.ID, Plemena.ID FROM Psi, Plemena WHERE Psi!PlemenoID = Plemena!ID",
              "SELECT Psi.ID FROM Plemena, Psi WHERE Psi!PlemenoID = Plemena!ID",
              "SELECT Psi.ID FROM Psi, Plemena WHERE PlemenoID = Plemena.ID ORDER BY Nazev"}) {
            all.push_back(statement);
            const Strings rows = RowsOf(statement);
            all.insert(all.end(), rows.begin(), rows.end());
        }
        return all;
    }
};

TEST_F(RowOrderTest, AnIndexNeverChangesAnOrder) {
    database.Execute(R"(
INSERT INTO Plemena (ID, Nazev) VALUES (1, 'c'), (2, 'b'), (3, 'b');
INSERT INTO Psi (ID, Jmeno, PlemenoID, MajitelID) VALUES
    (5, 'x', 2, 9), (1, 'y', 3, 8), (4, 'x', 1, 7), (2, 'x', 2, 6), (3, 'y', 3, 5), (6, 'z', 2, 4);
INSERT INTO PsiVeVystavach VALUES (5, 2), (1, 1), (5, 1), (2, 2), (4, 1), (3, 2);
)");
    const Strings withShipped = AllOrders();
    database.Execute("DROP INDEX Psi_PlemenoID; DROP INDEX Psi_MajitelID; DROP INDEX "
                     "PsiVeVystavach_PesID; DROP INDEX PsiVeVystavach_VystavaID");
    EXPECT_EQ(AllOrders(), withShipped);
    database.Execute("CREATE INDEX a ON Psi (PlemenoID DESC, Jmeno, MajitelID); "
                     "CREATE INDEX b ON Psi (Jmeno DESC); CREATE INDEX c ON Psi (MajitelID, ID);"
                     "CREATE INDEX d ON PsiVeVystavach (VystavaID DESC, PesID DESC);"
                     "CREATE INDEX e ON Plemena (Nazev DESC); ANALYZE");
    EXPECT_EQ(AllOrders(), withShipped);
}

TEST_F(RowOrderTest, RowsComeByIDOrAsTheyWereEntered) {
    database.Execute("INSERT INTO Psi (ID, PlemenoID) VALUES (5, 1), (2, 1), (9, 1), (3, 2);"
                     "INSERT INTO PsiVeVystavach VALUES (5, 2), (1, 1), (5, 1)");
    EXPECT_EQ(RowsOf("SELECT ID FROM Psi"), (Strings{"2", "3", "5", "9"}));
    EXPECT_EQ(RowsOf("SELECT ID FROM Psi WHERE PlemenoID = 1"), (Strings{"2", "5", "9"}));
    EXPECT_EQ(RowsOf("SELECT * FROM PsiVeVystavach"), (Strings{"5|2", "1|1", "5|1"}));
    EXPECT_EQ(RowsOf("SELECT ID FROM Psi ORDER BY PlemenoID DESC"), (Strings{"3", "2", "5", "9"}));
}

TEST_F(RowOrderTest, TextsSortByTheCzechAlphabetAndTiesByID) {
    database.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'Chrti'), (2, 'Čivavy'), (3, NULL), "
                     "(4, 'Cairn'), (5, 'Hrubosrstí'), (6, 'Cairn'), (7, 'ilustrace'), "
                     "(8, 'Žíhaní'), (9, 'cairn')");
    EXPECT_EQ(RowsOf("SELECT ID FROM Kruhy ORDER BY Nazev"),
              (Strings{"3", "9", "4", "6", "2", "5", "1", "7", "8"}));
    EXPECT_EQ(RowsOf("SELECT ID FROM Kruhy ORDER BY Nazev DESC"),
              (Strings{"8", "7", "1", "5", "2", "4", "6", "9", "3"}));
    EXPECT_EQ(RowsOf("SELECT DISTINCT Nazev FROM Kruhy"),
              (Strings{"Null", "cairn", "Cairn", "Čivavy", "Hrubosrstí", "Chrti", "ilustrace",
                       "Žíhaní"}));
}

TEST_F(RowOrderTest, TrueSortsBeforeFalseAndNullIsFalse) {
    database.Execute("INSERT INTO Psi (ID, PohlaviPes, Trida, Jmeno) VALUES (1, 0, 1, 'b'), "
                     "(2, NULL, 1, 'a'), (3, -1, 2, 'd'), (4, 1, 1, 'e'), (5, -1, 1, 'c')");
    EXPECT_EQ(RowsOf("SELECT ID FROM Psi ORDER BY PohlaviPes ASC, Trida ASC, Jmeno ASC"),
              (Strings{"5", "4", "3", "2", "1"}));
    EXPECT_EQ(RowsOf("SELECT ID FROM Psi ORDER BY PohlaviPes DESC"),
              (Strings{"1", "2", "3", "4", "5"}));
}

TEST_F(RowOrderTest, AJoinSortsByAFieldOfOneTableAndByAnAlias) {
    database.Execute("INSERT INTO Psi (ID, Jmeno, MajitelID) VALUES (1, 'b', 2), (2, 'a', 1), "
                     "(3, 'á', 2); INSERT INTO Majitele (ID, Jmeno) VALUES (1, 'z'), (2, 'y')");
    EXPECT_EQ(RowsOf("SELECT Majitele.Jmeno AS J, Psi.ID FROM Psi, Majitele WHERE MajitelID = "
                     "Majitele.ID ORDER BY Psi.Jmeno"),
              (Strings{"z|2", "y|3", "y|1"}));
    EXPECT_EQ(RowsOf("SELECT Majitele.Jmeno AS J, Psi.ID FROM Psi, Majitele WHERE MajitelID = "
                     "Majitele.ID ORDER BY j"),
              (Strings{"y|1", "y|3", "z|2"}));
    EXPECT_EQ(RowsOf("SELECT Psi.ID AS PID, Majitele.ID FROM Psi, Majitele WHERE Psi.MajitelID = "
                     "Majitele.ID ORDER BY MajitelID"),
              (Strings{"2|1", "1|2", "3|2"}));
}

} // namespace
} // namespace lorvo
