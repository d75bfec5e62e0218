#include "store/query.h"

#include "platform/values/errors.h"
#include "store/store_test.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class QueryTest : public StoreTest {
  protected:
    QueryTest() {
        database.Execute("INSERT INTO Uhrady (ID, ID_Psa, Datum, Kc, Ucet, Printed) VALUES "
                         "(1, 10, '2005-05-14T08:30:00', 1005000, 'účet', -1), "
                         "(2, 11, NULL, NULL, NULL, NULL), (3, 10, NULL, 0, '', 0)");
    }
    Connection& connection = TheDataModule().Conn1;
};

TEST_F(QueryTest, ReadsTypedCells) {
    Query row(connection, "SELECT ID_Psa, Datum, Kc, Ucet, Printed FROM Uhrady WHERE ID = 1");
    ASSERT_TRUE(row.Next());
    EXPECT_EQ(row.Int(0), 10);
    EXPECT_EQ(row.Date(1).ToIso(), "2005-05-14T08:30:00");
    EXPECT_EQ(row.Amount(2), Currency::FromRaw(1005000));
    EXPECT_EQ(row.Text(3), u"účet"_s);
    EXPECT_TRUE(row.Bool(4));
    EXPECT_EQ(row.Cell(2), Value(Currency::FromRaw(1005000)));
    EXPECT_EQ(row.Text(2), u"100.5"_s);
    EXPECT_EQ(row.Amount(0), Currency::FromUnits(10));
    EXPECT_FALSE(row.Next());
}

TEST_F(QueryTest, NullReadsAsTheTypesZero) {
    Query row(connection, "SELECT Datum, Kc, Ucet, Printed, Mena FROM Uhrady WHERE ID = 2");
    ASSERT_TRUE(row.Next());
    EXPECT_TRUE(row.IsNull(0));
    EXPECT_EQ(row.Date(0), DateValue());
    EXPECT_EQ(row.Amount(1), Currency());
    EXPECT_EQ(row.Text(2), QString());
    EXPECT_FALSE(row.Bool(3));
    EXPECT_EQ(row.Int(4), 0);
}

TEST_F(QueryTest, TakesValuesForQuestionMarks) {
    const auto idsOf = [this](std::string_view statement, const std::vector<Value>& values) {
        Query query(connection, statement, values);
        std::vector<int> ids;
        while (query.Next())
            ids.push_back(query.Int(0));
        return ids;
    };
    using IDs = std::vector<int>;
    EXPECT_EQ(idsOf("SELECT ID FROM Uhrady WHERE ID_Psa = ?", {10}), (IDs{1, 3}));
    EXPECT_EQ(
        idsOf("SELECT ID FROM Uhrady WHERE Kc = ? OR ID = ?", {Currency::FromRaw(1005000), 2}),
        (IDs{1, 2}));
    EXPECT_EQ(idsOf("SELECT ID FROM Uhrady WHERE Kc < ?", {100}), (IDs{3}));
    EXPECT_EQ(idsOf("SELECT ID FROM Uhrady WHERE Ucet = ?", {u"účet"_s}), (IDs{1}));
    EXPECT_EQ(idsOf("SELECT ID FROM Uhrady WHERE Printed = ?", {true}), (IDs{1}));
    EXPECT_EQ(idsOf("SELECT ID FROM Uhrady WHERE ID_Psa = ?", {Value()}), (IDs{}));
    EXPECT_THROW(idsOf("SELECT ID FROM Uhrady WHERE ID = ?", {}), StoreError);
    EXPECT_THROW(idsOf("SELECT ID FROM Uhrady", {1}), StoreError);
}

TEST_F(QueryTest, TwoOfOneShapeWalkIndependently) {
    Query outer(connection, "SELECT ID FROM Uhrady WHERE ID_Psa = 10");
    ASSERT_TRUE(outer.Next());
    Query inner(connection, "SELECT ID FROM Uhrady WHERE ID_Psa = 11");
    ASSERT_TRUE(inner.Next());
    EXPECT_EQ(inner.Int(0), 2);
    ASSERT_TRUE(outer.Next());
    EXPECT_EQ(outer.Int(0), 3);
}

TEST_F(QueryTest, RefusesCellsThatAreNotThere) {
    Query row(connection, "SELECT ID FROM Uhrady");
    EXPECT_THROW(row.Int(0), StoreError); // before the first row
    ASSERT_TRUE(row.Next());
    EXPECT_THROW(row.Int(1), StoreError);
    EXPECT_THROW(row.IsNull(-1), StoreError);
}

TEST_F(QueryTest, OnlyReads) {
    EXPECT_THROW(Query(connection, "DELETE * FROM Uhrady"), StoreError);
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Uhrady"), "3");
}

} // namespace
} // namespace lorvo
