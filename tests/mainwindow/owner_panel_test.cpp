#include "mainwindow/panels_test.h"

#include <QHeaderView>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class OwnerPanelTest : public PanelsTest {
  protected:
    OwnerPanelTest() {
        AddShow(1, "Hlavní výstava", 300);
        AddDog(3, "Bára");
        AddDog(4, "Alík");
        Run("UPDATE Psi SET PohlaviPes = -1 WHERE ID = 4");
        Enter(3, 1);
        Enter(4, 1);
        Pay(4, 2000);
    }
    void ShowOwnerOf(const QString& key) {
        Show(key);
        QTest::mouseClick(Value(u"Jméno:"_s), Qt::LeftButton);
    }
    QPoint Row(int row) {
        auto& list = Get<ReportList>("lvwDogs");
        return list.visualRect(list.model()->index(row, 0)).center();
    }
};

TEST_F(OwnerPanelTest, OpensByTheOwnersNameWithAllDogsAndTotals) {
    Start();
    ShowOwnerOf(u"P3"_s);
    EXPECT_TRUE(InSight("picMajitelInfo"));
    EXPECT_FALSE(InSight("picPesInfo"));
    EXPECT_EQ(Title(), u"Jana Malá"_s);
    EXPECT_EQ(Text(u"Jméno:"_s), u"Jana Malá"_s);
    EXPECT_EQ(Text(u"Ulice:"_s), u"Dlouhá 5"_s);
    EXPECT_EQ(Text(u"PSČ:"_s), u"110 00"_s);
    EXPECT_EQ(Text(u"Město:"_s), u"Praha"_s);
    EXPECT_EQ(Text(u"Telefon:"_s), u"603 111 222"_s);
    EXPECT_EQ(Text(u"Email:"_s), u"jana@psi.cz"_s);
    EXPECT_EQ(Text("Label19"), u"2"_s);
    EXPECT_EQ(Text(u"Celkem psů:"_s), u"2"_s);
    EXPECT_EQ(Text(u"Cena:"_s), u"2698 Kč"_s);
    EXPECT_EQ(Text(u"Uhrazeno:"_s), u"2000 Kč"_s);
    EXPECT_EQ(Text(u"Bilance:"_s), u"-698 Kč"_s);
    EXPECT_EQ(Value(u"Bilance:"_s)->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    EXPECT_EQ(Module().CurrentOwner, 7);
    EXPECT_EQ(Module().CurrentDogID, 3);
}

TEST_F(OwnerPanelTest, TheListHasItsColumnsAndColours) {
    Start();
    ShowOwnerOf(u"P3"_s);
    const auto& list = Get<ReportList>("lvwDogs");
    QStringList headings;
    for (int column = 0; column < list.ColumnCount(); ++column)
        headings << list.model()->headerData(column, Qt::Horizontal).toString();
    EXPECT_EQ(headings.join(u' '),
              u"Jméno Výstava Uzávěrka První pes Soutěže Cena Uhrazeno Rozdíl Poznámka"_s);
    EXPECT_EQ(list.Row(0).key, u"P4"_s);
    EXPECT_EQ(list.CellText(0, 1), u"Hlavní výstava"_s);
    EXPECT_EQ(list.CellText(0, 7), u"651 Kč"_s);
    const auto colour = [&](int row, int column) {
        return list.model()->index(row, column).data(Qt::ForegroundRole).value<QColor>();
    };
    EXPECT_EQ(colour(0, 0), QColor(0, 0, 255));
    EXPECT_EQ(colour(0, 7), QColor(0, 255, 0));
    EXPECT_EQ(colour(1, 0), QColor(255, 0, 0));
    EXPECT_EQ(colour(1, 7), QColor(255, 0, 0));
}

TEST_F(OwnerPanelTest, AClickSelectsTheDogAndADoubleClickShowsIt) {
    Start();
    ShowOwnerOf(u"P3"_s);
    auto& list = Get<ReportList>("lvwDogs");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Row(0));
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P4"_s);
    EXPECT_TRUE(InSight("picMajitelInfo"));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, Row(0));
    EXPECT_TRUE(InSight("picPesInfo"));
    EXPECT_EQ(Title(), u"Alík z Lhoty"_s);
}

TEST_F(OwnerPanelTest, BackShowsTheSelectedDogAgain) {
    Start();
    ShowOwnerOf(u"P3"_s);
    Click("Label21");
    EXPECT_TRUE(InSight("picPesInfo"));
    EXPECT_EQ(Title(), u"Bára z Lhoty"_s);
    EXPECT_EQ(Module().CurrentDogID, 3);
}

TEST_F(OwnerPanelTest, PaymentsOfTheOwnerAndTheRefillOnReturn) {
    Offer({"frmUhrady"});
    Start();
    ShowOwnerOf(u"P3"_s);
    Click("lblSeznamPlateb1");
    EXPECT_EQ(opened, QStringList(u"frmUhrady"_s));
    EXPECT_EQ(Module().PaymentsOwner, 7);
    Pay(3, 698);
    panels->RefillOwnerDogs();
    EXPECT_EQ(Text(u"Bilance:"_s), u"0 Kč"_s);
    EXPECT_TRUE(InSight("picMajitelInfo"));
}

TEST_F(OwnerPanelTest, ItsEmailIsALinkToo) {
    Start();
    ShowOwnerOf(u"P3"_s);
    QTest::mouseClick(Value(u"Email:"_s), Qt::LeftButton);
    EXPECT_EQ(platform.openedAddresses, QStringList(u"mailto:jana@psi.cz"_s));
}

TEST_F(OwnerPanelTest, ADogOutsideTheTreeIsListedButCantBeSelected) {
    AddDog(5, "Aron", 404);
    Start();
    ShowOwnerOf(u"P3"_s);
    auto& list = Get<ReportList>("lvwDogs");
    EXPECT_EQ(list.Row(1).key, u"P5"_s);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Row(1));
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P3"_s);
}

TEST_F(OwnerPanelTest, TotalsAreNeverCutHoweverNarrowTheWindow) {
    Run("UPDATE Uhrady SET Kc = 123456789012");
    window.resize(300, 400);
    Start();
    ShowOwnerOf(u"P3"_s);
    for (const auto& caption : {u"Cena:"_s, u"Uhrazeno:"_s, u"Bilance:"_s, u"Celkem psů:"_s}) {
        const QLabel* total = Value(caption);
        ASSERT_TRUE(total) << caption.toStdString();
        const auto isWhole = [total] {
            return total->width() >= total->sizeHint().width();
        };
        EXPECT_TRUE(QTest::qWaitFor(isWhole)) << caption.toStdString();
    }
}

TEST_F(OwnerPanelTest, ReadAfreshItShowsWhatBecameOfTheDogs) {
    Start();
    ShowOwnerOf(u"P3"_s);
    Run("UPDATE Psi SET Jmeno = 'Astor' WHERE ID = 4");
    panels->Refresh();
    EXPECT_TRUE(InSight("picMajitelInfo"));
    EXPECT_TRUE(Get<ReportList>("lvwDogs").CellText(0, 0).startsWith(u"Astor"_s));
}

} // namespace
} // namespace lorvo
