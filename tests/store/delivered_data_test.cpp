// What a fresh installation holds, and how it is made.

#include "store/store_test.h"

#include "csv_table.h"
#include "data_builder.h"

#include <QFile>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using Table = std::vector<Strings>;

TEST(CsvTest, ReadsPlainAndQuotedFields) {
    EXPECT_EQ(ParseCsv("a,b\n1,2\n"), (Table{{"a", "b"}, {"1", "2"}}));
    EXPECT_EQ(ParseCsv("a,,c"), (Table{{"a", "", "c"}}));
    EXPECT_EQ(ParseCsv("a\r\nb\r\n"), (Table{{"a"}, {"b"}}));
    EXPECT_EQ(ParseCsv("\"x, y\",\"say \"\"hi\"\"\",\"two\nlines\"\n"),
              (Table{{"x, y", "say \"hi\"", "two\nlines"}}));
    EXPECT_EQ(ParseCsv(""), Table{});
    EXPECT_THROW(ParseCsv("a\n\"b"), std::runtime_error);
}

class DeliveredDataTest : public ::testing::Test {
  protected:
    TempDatabase database{TempDatabase::Content::Delivered};
};

TEST_F(DeliveredDataTest, HoldsTheBreedsUnderTheirFixedIDs) {
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Plemena"), "364");
    EXPECT_EQ(ValueOf("SELECT Nazev, FCI FROM Plemena WHERE ID = 949"), "Německý ovčák|1");
    EXPECT_EQ(ValueOf("SELECT Nazev, NazevOrig, FCI, Parent, Vlastni, Pouzivat, ID_Kruhu "
                      "FROM Plemena WHERE ID = 784"),
              "Pointer|English Pointer|7|0|0|0|0");
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Plemena WHERE FCI < 1 OR FCI > 10 OR Nazev = ''"), "0");
}

TEST_F(DeliveredDataTest, HoldsNothingOfAShowButTheUnsetDate) {
    for (const char* table :
         {"Barvy", "Kruhy", "Psi", "Vazby_Trida", "Majitele", "Souteze", "Vazby_Souteze", "Meny",
          "Uhrady", "Vystavy", "PsiVeVystavach", "Oceneni", "PsiOceneni"})
        EXPECT_EQ(ValueOf(std::string("SELECT COUNT(*) FROM ") + table), "0") << table;
    TheDataModule().rsOstatni.Open("SELECT * FROM Ostatni");
    ASSERT_EQ(TheDataModule().rsOstatni.RecordCount(), 1);
    EXPECT_TRUE(TheDataModule().rsOstatni.Field("DatumVystavy").ToDate().IsZero());
}

TEST(DataBuilderTest, TheSameTextsGiveTheSameBytes) {
    const QTemporaryDir folder;
    const auto build = [&](const QString& name) {
        const QString path = folder.filePath(name);
        BuildDeliveredDatabase(
            path.toStdString(),
            "CREATE TABLE Plemena (ID INTEGER PRIMARY KEY, FCI INTEGER, Nazev "
            "TEXT, NazevOrig TEXT); CREATE TABLE Ostatni (DatumVystavy DATETIME)",
            "number,group,cs,orig\n166,1,Německý ovčák,\"Schäferhund, D.\"\n");
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    };
    const QByteArray first = build(u"1"_s);
    EXPECT_TRUE(first.startsWith("SQLite format 3"));
    EXPECT_EQ(build(u"2"_s), first);
}

TEST(DataBuilderTest, RefusesAListThatIsNone) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath(u"1"_s).toStdString();
    EXPECT_THROW(BuildDeliveredDatabase(path, "", "number,group\n166,1\n"), std::runtime_error);
}

} // namespace
} // namespace lorvo
