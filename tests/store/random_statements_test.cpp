// Statements of no sense, made from the words of sensible ones: each is either carried out or
// refused, and none of them changes anything.

#include "platform/values/errors.h"
#include "store/store_test.h"

#include <algorithm>
#include <array>
#include <random>

namespace lorvo {
namespace {

constexpr std::array kWords = {"SELECT",   "FROM",
                               "WHERE",    "ORDER BY",
                               "GROUP",    "AND",
                               "OR",       "NOT",
                               "IN",       "IS",
                               "NULL",     "TRUE",
                               "false",    "ASC",
                               "DESC",     "DISTINCT",
                               "TOP",      "AS",
                               "DELETE",   "COUNT",
                               "SUM",      "MIN",
                               "MAX",      "LCASE",
                               "Psi",      "Uhrady",
                               "Majitele", "ID",
                               "Jmeno",    "Kc",
                               "Trida",    "PohlaviPes",
                               "Datum",    "x",
                               "*",        "(",
                               ")",        ",",
                               ".",        "!",
                               "+",        "-",
                               "=",        "<>",
                               "<",        ">=",
                               "?",        ";",
                               "'a'",      "''",
                               "'O'",      "\"b\"",
                               "[ID]",     "[",
                               "1",        "0",
                               "5.25",     "99999999999999999999",
                               "Psi!ID",   "Uhrady.Kc",
                               "č",        "\x80",
                               "\t"};

constexpr std::array kStatements = {
    "SELECT Majitele.Prijmeni + ' ' + Majitele.Jmeno AS X, Psi.ID FROM Psi, Majitele WHERE "
    "Psi.MajitelID = Majitele.ID ORDER BY MajitelID",
    "SELECT COUNT (*) FROM Psi WHERE PlemenoID IN (SELECT ID FROM Plemena WHERE FCI = 3)",
    "SELECT DISTINCT(VystavaID) FROM PsiVeVystavach WHERE PesID <> 4",
    "SELECT TOP 5 * FROM Psi WHERE NOT PohlaviPes= true AND Cislo > 0 ORDER BY Jmeno Asc, ID DESC",
    "SELECT SUM (Kc) FROM Uhrady WHERE ID_Psa = 1 AND NOT( Ucet IS NULL) AND Kc >= -1.5"};

class RandomStatementsTest : public StoreTest {
  protected:
    RandomStatementsTest() {
        database.Execute("INSERT INTO Psi (Jmeno, Cislo) VALUES ('Asta', 1), ('Bery', NULL);"
                         "INSERT INTO Uhrady (Kc, ID_Psa) VALUES (15000, 1);"
                         "INSERT INTO Majitele (Jmeno) VALUES ('Jan')");
    }

    std::size_t Below(std::size_t bound) { return random() % bound; }

    std::string Words() {
        std::string statement = "SELECT ";
        for (std::size_t count = 1 + Below(14); count > 0; --count)
            statement += std::string(kWords[Below(kWords.size())]) + (Below(3) ? " " : "");
        return statement;
    }

    /// A sensible statement with some of its words exchanged, and now and then a byte lost.
    std::string Damaged() {
        std::string statement = kStatements[Below(kStatements.size())];
        for (std::size_t count = 1 + Below(3); count > 0; --count) {
            const std::size_t start = statement.find(' ', Below(statement.size())) + 1;
            const std::size_t end = std::min(statement.find(' ', start), statement.size());
            statement.replace(start, end - start, kWords[Below(kWords.size())]);
        }
        if (Below(4) == 0)
            statement.erase(Below(statement.size()), 1);
        return statement;
    }

    /// Whether it was carried out.
    bool Try(const std::string& statement) {
        try {
            module.rsrsQuery2.Open(statement);
            return true;
        } catch (const Error&) {
            return false;
        }
    }

    std::mt19937 random{20050514};
};

TEST_F(RandomStatementsTest, AreCarriedOutOrRefused) {
    int carriedOut = 0;
    constexpr int kRounds = 20000;
    for (int round = 0; round < kRounds; ++round)
        carriedOut += Try(round % 2 ? Words() : Damaged()) ? 1 : 0;
    EXPECT_GT(carriedOut, kRounds / 100); // not all were refused at the first word
    EXPECT_LT(carriedOut, kRounds / 2);
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Psi"), "2");
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Uhrady"), "1");
}

} // namespace
} // namespace lorvo
