// The page of the lists: shown as the windows show them, saved for other programs.

#include "manager/manager_fixture.h"

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

class ListsPageTest : public ManagerPageTest {
  protected:
    ListsPageTest() {
        OpenEntries(kEntries);
        platform.ExpectMessage(
            u"Převzato ze souboru "_s + Path(u"prihlasky.csv"_s) +
                u"\nPsů: 2\nNových majitelů: 1\nPřihlášek na výstavy a do soutěží: "
                u"2\nPoplatky: 1 100,00 Kč\nPlateb: 0\nUhrazeno: 0,00 Kč\n"
                u"\nUložit tuto zprávu do souboru?"_s,
            MessageAnswer::No);
        Press("cmdTake");
        Show(2);
    }
    void ChooseExhibitors() {
        ReportList& lists = List("lvwSeznamy");
        lists.setFocus();
        QTest::keyClick(&lists, Qt::Key_Home);
        QTest::keyClick(&lists, Qt::Key_Down);
    }
};

TEST_F(ListsPageTest, NothingIsSavedBeforeAListIsChosen) {
    EXPECT_FALSE(IsOffered("cmdCsv"));
    EXPECT_FALSE(IsOffered("cmdSheet"));
}

TEST_F(ListsPageTest, AListStandsWithItsTotalsAndNumbersAtTheRight) {
    ChooseExhibitors();
    ReportList& rows = List("lvwRadky");
    ASSERT_EQ(rows.RowCount(), 1);
    EXPECT_EQ(rows.CellText(0, 0), u"Eva Nová"_s);
    EXPECT_TRUE(LabelText("lblCelkem").startsWith(u"Celkem: Psů 2, "_s))
        << LabelText("lblCelkem").toStdString();
    const auto alignment = [&rows](int column) {
        return rows.model()->index(0, column).data(Qt::TextAlignmentRole).toInt();
    };
    EXPECT_TRUE(alignment(7) & Qt::AlignRight) << "dogs";
    EXPECT_FALSE(alignment(0) & Qt::AlignRight) << "names";
}

TEST_F(ListsPageTest, AChosenListIsReadAnewOnReturn) {
    ChooseExhibitors();
    ASSERT_EQ(List("lvwRadky").RowCount(), 1);
    Show(3);
    TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
    Add("Majitele", {{"Jmeno", Text("Jan")}});
    TheDataModule().Conn1.Close();
    Show(2);
    EXPECT_TRUE(QTest::qWaitFor([this] { return List("lvwRadky").RowCount() == 2; }));
}

TEST_F(ListsPageTest, AListIsSavedAsTextAndAsASheet) {
    ChooseExhibitors();
    platform.chosenFiles << Path(u"v.csv"_s) << Path(u"v.xlsx"_s);
    Press("cmdCsv");
    EXPECT_TRUE(Read(Path(u"v.csv"_s)).contains("Eva Nová;"));
    Press("cmdSheet");
    EXPECT_TRUE(Read(Path(u"v.xlsx"_s)).startsWith("PK"));
    EXPECT_EQ(platform.suggestedFiles.last(), Path(u"Vystavovatelé.xlsx"_s));
}

TEST_F(ListsPageTest, AFolderThatIsNotThereIsSaid) {
    ChooseExhibitors();
    platform.chosenFiles << Path(u"neni/v.csv"_s);
    platform.ExpectMessage(u"Soubor nelze zapsat „"_s + Shown(u"neni/v.csv"_s) +
                           u"“: soubor nebo jeho složka neexistuje"_s);
    Press("cmdCsv");
}

} // namespace
} // namespace lorvo::test
