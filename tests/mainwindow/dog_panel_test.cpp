#include "mainwindow/collapsible_frame.h"
#include "mainwindow/panels_test.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/vazby_souteze.h"

#include <QScrollArea>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class DogPanelTest : public PanelsTest {
  protected:
    DogPanelTest() {
        AddShow(1, "Hlavní výstava", 300);
        AddShow(2, "Klubová", 700);
        Run("INSERT INTO Souteze (ID, Nazev, Cena) VALUES (1, 'Šampion', 1500000)");
        Run("INSERT INTO Oceneni (ID, Nazev) VALUES (1, 'CAC'), (2, 'BOB')");
        AddDog(3, "Alík");
    }
    QColor ColourOf(const QString& caption) {
        const QLabel* label = Value(caption);
        return label->palette().color(label->foregroundRole());
    }
    /// Short words, together that long.
    static std::string Words(std::size_t length) {
        std::string words;
        while (words.size() < length)
            words += "slovo ";
        return words;
    }
};

TEST_F(DogPanelTest, EachLineIsFoundByItsCaption) {
    Run("UPDATE Psi SET PohlaviPes = -1, DatumNar = '2005-05-14T00:00:00', Otec = 'Rek', "
        "Matka = 'Bára', PK = 'ČLP 12', Poznamka = 'kouše', Chovatel = 'Novák'");
    Enter(3, 1);
    Pay(3, 1000);
    Start();
    Show(u"P3"_s);
    const std::pair<const char*, const char*> lines[] = {
        {"Plemeno:", "Pudl"},
        {"Pohlaví:", "Pes"},
        {"Datum narození:", "14.5.2005"},
        {"Třída:", "otevřená"},
        {"Poznámka:", "kouše"},
        {"Chovatelská stanice:", "z Lhoty"},
        {"PK:", "ČLP 12"},
        {"Otec:", "Rek"},
        {"Matka:", "Bára"},
        {"Chovatel:", "Novák"},
        {"Velikost:", ""},
        {"Srst:", ""},
        {"Barva:", ""},
        {"FCI:", ""},
        {"Jméno:", "Jana Malá"},
        {"Ulice:", "Dlouhá 5"},
        {"PSČ:", "110 00"},
        {"Město:", "Praha"},
        {"Stát:", "CZ"},
        {"Telefon:", "603 111 222"},
        {"Email:", "jana@psi.cz"},
        {"Uzávěrka:", "Druhá"},
        {"První pes:", "Ne"},
        {"Cena celkem:", "1 349,00 Kč"},
        {"Uhrazeno:", "1 000,00 Kč"},
        {"Rozdíl:", "- 349,00 Kč"},
    };
    for (const auto& [caption, value] : lines)
        EXPECT_EQ(Text(QString::fromUtf8(caption)), QString::fromUtf8(value)) << caption;
    EXPECT_EQ(ColourOf(u"Pohlaví:"_s), QColor(0, 0, 255));
    EXPECT_EQ(ColourOf(u"Poznámka:"_s), QColor(255, 0, 0));
    EXPECT_EQ(ColourOf(u"Rozdíl:"_s), QColor(255, 0, 0));
    EXPECT_EQ(Text("lblBalanceWord"), u"Nedoplatek"_s);
}

TEST_F(DogPanelTest, AnEmptyNoteIsBlankOnWhiteAndTheOwnersNameHasRoom) {
    Start();
    Show(u"P3"_s);
    const QLabel* note = Value(u"Poznámka:"_s);
    EXPECT_EQ(note->text(), QString());
    EXPECT_EQ(note->palette().color(note->backgroundRole()), QColor(Qt::white));
    const QLabel* name = Value(u"Jméno:"_s);
    EXPECT_EQ(name->width(), name->fontMetrics().horizontalAdvance(name->text()) * 13 / 10);
}

TEST_F(DogPanelTest, LongTextsNeitherWidenThePanelNorLeaveBlankRoom) {
    Start();
    Show(u"P3"_s);
    auto* area = Value(u"PK:"_s)->window()->findChild<QScrollArea*>(u"areaSections"_s);
    const int before = area->window()->minimumSizeHint().width();
    Run("UPDATE Psi SET PK = '" + std::string(150, 'W') + "', ChovnaStanice = '" + Words(140) +
        "'");
    Run("UPDATE Majitele SET Jmeno = '" + Words(250) + "', Email = '" + std::string(250, 'w') +
        "'");
    Show(u"P3"_s);
    QCoreApplication::processEvents(); // the layout of the longer lines
    EXPECT_EQ(area->window()->minimumSizeHint().width(), before);
    const QWidget* sections = area->widget();
    EXPECT_EQ(sections->height(),
              std::max(area->viewport()->height(), sections->heightForWidth(sections->width())));
}

TEST_F(DogPanelTest, TheListsHaveTheirColumnsAndRefuseRenaming) {
    Start();
    Show(u"P3"_s);
    const auto& shows = Get<ReportList>("lvwSouteze");
    EXPECT_EQ(shows.model()->headerData(0, Qt::Horizontal).toString(), u"Název"_s);
    EXPECT_EQ(shows.model()->headerData(1, Qt::Horizontal).toString(), u"Cena"_s);
    EXPECT_EQ(shows.Row(0).key, u"V1"_s);
    EXPECT_EQ(shows.Row(2).key, u"k1"_s);
    EXPECT_EQ(shows.Row(2).tag, u"1"_s);
    for (const char* name : {"lvwSouteze", "lvwOceneni"}) {
        const auto& list = Get<ReportList>(name);
        EXPECT_FALSE(list.model()->flags(list.model()->index(0, 0)) & Qt::ItemIsEditable) << name;
    }
}

TEST_F(DogPanelTest, TickingAShowStoresItAndTheFeeFollows) {
    Start();
    Show(u"P3"_s);
    EXPECT_EQ(Text(u"Cena celkem:"_s), u" 0,00 Kč"_s);
    Tick("lvwSouteze", u"V1"_s);
    EXPECT_EQ(ShowsOfDog(3), std::vector({1}));
    EXPECT_EQ(Text(u"Cena celkem:"_s), u"1 349,00 Kč"_s);
    Tick("lvwSouteze", u"V2"_s);
    EXPECT_EQ(Ticked("lvwSouteze"), u"V2"_s);
    EXPECT_EQ(ShowsOfDog(3), std::vector({2}));
    EXPECT_EQ(Text(u"Cena celkem:"_s), u"1 749,00 Kč"_s);
}

// kept: last-show-stays-ticked
TEST_F(DogPanelTest, TheOnlyShowCantBeUntickedAndTheLinksStay) {
    Enter(3, 2);
    Start();
    Show(u"P3"_s);
    Tick("lvwSouteze", u"V2"_s);
    EXPECT_EQ(Ticked("lvwSouteze"), u"V2"_s);
    EXPECT_EQ(ShowsOfDog(3), std::vector({2}));
}

TEST_F(DogPanelTest, ACompetitionIsTickedAndTakenBackOnlyBesideAShow) {
    Start();
    Show(u"P3"_s);
    Tick("lvwSouteze", u"k1"_s);
    EXPECT_EQ(CompetitionsOfDog(3), std::vector({1}));
    EXPECT_EQ(Text(u"Cena celkem:"_s), u" 150,00 Kč"_s);
    Tick("lvwSouteze", u"k1"_s);
    EXPECT_EQ(CompetitionsOfDog(3), std::vector({1}));
    Tick("lvwSouteze", u"V1"_s);
    Tick("lvwSouteze", u"k1"_s);
    EXPECT_EQ(CompetitionsOfDog(3), std::vector<int>());
    EXPECT_EQ(Ticked("lvwSouteze"), u"V1"_s);
}

TEST_F(DogPanelTest, AfterATickTheSelectedNodeIsShownAndFailuresAreSkipped) {
    AddDog(4, "Bára", 12, 0);
    Start();
    Show(u"P3"_s);
    // The history can show one dog while another is selected.
    tree->SelectNode(&nodes.Get(u"P4"_s));
    Tick("lvwSouteze", u"V1"_s);
    EXPECT_EQ(ShowsOfDog(3), std::vector({1}));
    EXPECT_EQ(Title(), u"Bára z Lhoty"_s);
}

TEST_F(DogPanelTest, TickingByTheKeyboardKeepsTheRow) {
    Start();
    Show(u"P3"_s);
    auto& list = Get<ReportList>("lvwSouteze");
    list.setFocus();
    list.SelectRow(1);
    for (int times = 0; times < 2; ++times)
        QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(list.SelectedRow(), 1);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(Ticked("lvwSouteze"), u"V2"_s);
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(ShowsOfDog(3), std::vector({1}));
    EXPECT_EQ(Text(u"Cena celkem:"_s), u"1 349,00 Kč"_s);
}

TEST_F(DogPanelTest, NeverLiesUnderItsScrollBarNorTakesTheTabKeyForIt) {
    window.resize(400, 300);
    Start();
    Show(u"P3"_s);
    const auto& area = Get<QScrollArea>("areaSections");
    const auto hasItsWidth = [&area] {
        return area.viewport()->width() >= area.widget()->minimumSizeHint().width();
    };
    EXPECT_TRUE(QTest::qWaitFor(hasItsWidth));
    EXPECT_LE(area.widget()->width(), area.viewport()->width());
    EXPECT_EQ(area.focusPolicy(), Qt::NoFocus);
}

TEST_F(DogPanelTest, TickingAwardsStoresThem) {
    Start();
    Show(u"P3"_s);
    Tick("lvwOceneni", u"C2"_s);
    EXPECT_EQ(AwardsOfDog(3), std::vector({2}));
    Tick("lvwOceneni", u"C1"_s);
    EXPECT_EQ(AwardsOfDog(3), std::vector({1, 2}));
    Tick("lvwOceneni", u"C2"_s);
    EXPECT_EQ(AwardsOfDog(3), std::vector({1}));
    EXPECT_EQ(Ticked("lvwOceneni"), u"C1"_s);
}

TEST_F(DogPanelTest, ARowOfAListBelowTheWindowsEdgeIsScrolledIntoSight) {
    window.resize(900, 420);
    Start();
    Show(u"P3"_s);
    auto& awards = Get<ReportList>("lvwOceneni");
    EXPECT_TRUE(awards.visibleRegion().isEmpty());
    awards.scrollTo(awards.model()->index(1, 0));
    const QRect row = awards.visualRect(awards.model()->index(1, 0));
    EXPECT_TRUE(awards.viewport()->visibleRegion().contains(row.center()));
}

TEST_F(DogPanelTest, LinksOpenTheirWindows) {
    Run("INSERT INTO Meny (ID, Nazev, Zkratka, Kurs, Hlavni) VALUES (1, 'koruna', 'Kč', 10000, "
        "-1)");
    Offer({"fm_Dog", "frmPlatba", "frmUhrady", "frmEditMan"});
    Start();
    Show(u"P3"_s);
    dogTask.adding = true;
    Module().PaymentsOwner = 5;
    Click("lblEdit");
    EXPECT_FALSE(dogTask.adding);
    Click("lblNovaPlatba");
    Click("lblSeznamPlateb");
    EXPECT_EQ(Module().PaymentsOwner, 0);
    Click("picEditMajitele");
    EXPECT_EQ(opened, (QStringList{u"fm_Dog"_s, u"frmPlatba"_s, u"frmUhrady"_s, u"frmEditMan"_s}));
    EXPECT_EQ(Get<QWidget>("lblNovaPlatba").toolTip(), u"Přidat novou platbu"_s);
    EXPECT_EQ(Get<QWidget>("lblSeznamPlateb").toolTip(),
              u"Zobrazit seznam všech přijatých plateb za psa"_s);
}

TEST_F(DogPanelTest, LinksActOnTheDogOnShowWhateverOtherWindowsLeftBehind) {
    Run("INSERT INTO Meny (ID, Nazev, Zkratka) VALUES (1, 'koruna', 'Kč')");
    Offer({"fm_Dog", "frmPlatba", "frmUhrady", "frmEditMan"});
    Start();
    Show(u"P3"_s);
    for (const char* link : {"lblEdit", "lblNovaPlatba", "lblSeznamPlateb", "picEditMajitele"}) {
        Module().CurrentDogID = 99;
        Module().CurrentOwner = 98;
        Click(link);
        EXPECT_EQ(Module().CurrentDogID, 3) << link;
        EXPECT_EQ(Module().CurrentOwner, 7) << link;
    }
}

// kept: classes-of-the-last-breed
TEST_F(DogPanelTest, TheEditorGetsTheBreedThatItWasOpenedForFromTheTree) {
    Offer({"fm_Dog"});
    Start();
    Show(u"P3"_s);
    Click("lblEdit");
    EXPECT_EQ(dogTask.breedID, 0);
    Module().CurrentBreedID = kSpecialBreedID;
    Click("lblEdit");
    EXPECT_EQ(dogTask.breedID, kSpecialBreedID);
    EXPECT_FALSE(dogTask.adding);
}

TEST_F(DogPanelTest, TheEditorGetsTheDogOnShowThoughAnotherNodeIsSelected) {
    Offer({"fm_Dog"});
    Start();
    Show(u"P3"_s);
    tree->SelectNode(&nodes.Get(u"R12"_s));
    Click("lblEdit");
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P3"_s);
}

TEST_F(DogPanelTest, TicksAreThoseOfTheDogOnShowWhateverOtherWindowsLeftBehind) {
    AddDog(4, "Bára");
    Enter(4, 2);
    Start();
    Show(u"P3"_s);
    Module().CurrentDogID = 4;
    Tick("lvwSouteze", u"V1"_s);
    Module().CurrentDogID = 4;
    Tick("lvwOceneni", u"C1"_s);
    EXPECT_EQ(ShowsOfDog(3), std::vector({1}));
    EXPECT_EQ(AwardsOfDog(3), std::vector({1}));
    EXPECT_EQ(ShowsOfDog(4), std::vector({2}));
    EXPECT_EQ(AwardsOfDog(4), std::vector<int>());
}

TEST_F(DogPanelTest, WorksOnAfterARebuildThatLeftNothingSelected) {
    Offer({"fm_Dog", "frmPlatba", "frmUhrady"});
    Run("INSERT INTO Meny (ID, Nazev, Zkratka) VALUES (1, 'koruna', 'Kč')");
    Start();
    for (const char* link : {"lblEdit", "lblNovaPlatba", "lblSeznamPlateb"}) {
        Show(u"P3"_s);
        tree->LoadData();
        Click(link);
        EXPECT_EQ(opened.size(), 1) << link;
        opened.clear();
    }
    Show(u"P3"_s);
    tree->LoadData();
    Tick("lvwSouteze", u"V1"_s);
    EXPECT_EQ(Text(u"Cena celkem:"_s), u"1 349,00 Kč"_s);
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P3"_s);
}

TEST_F(DogPanelTest, GoesWithItsDog) {
    Start();
    Show(u"P3"_s);
    Run("DELETE FROM Psi");
    tree->LoadData();
    EXPECT_FALSE(InSight("picPesInfo"));
    EXPECT_EQ(Title(), QString());
    EXPECT_EQ(Path(), QString());
    EXPECT_EQ(Module().CurrentDogID, 0);
}

TEST_F(DogPanelTest, WithoutACurrencyNoPaymentIsTaken) {
    Offer({"frmPlatba"});
    Start();
    Show(u"P3"_s);
    platform.ExpectMessage(u"Platbu nelze přijmout, v seznamu měn není vytvořena žádná měna. "
                           u"Můžete ji přidat v okně Nastavení/Měny"_s,
                           MessageAnswer::Ok, MessageIcon::Exclamation, MessageButtons::Ok,
                           u"Lorvo"_s);
    Click("lblNovaPlatba");
    EXPECT_EQ(opened, QStringList());
}

TEST_F(DogPanelTest, AnEmailIsOpenedOrRefusedOrIgnoredWhenEmpty) {
    Start();
    Show(u"P3"_s);
    QTest::mouseClick(Value(u"Email:"_s), Qt::LeftButton);
    EXPECT_EQ(platform.openedAddresses, QStringList(u"mailto:jana@psi.cz"_s));
    Run("UPDATE Majitele SET Email = 'jana.psi'");
    Show(u"P3"_s);
    platform.ExpectMessage(u"Neplatný tvar e-mailové adresy"_s, MessageAnswer::Ok,
                           MessageIcon::Information, MessageButtons::Ok);
    QTest::mouseClick(Value(u"Email:"_s), Qt::LeftButton);
    Run("UPDATE Majitele SET Email = ''");
    Show(u"P3"_s);
    QTest::mouseClick(Value(u"Email:"_s), Qt::LeftButton);
    EXPECT_EQ(platform.openedAddresses.size(), 1);
}

TEST_F(DogPanelTest, SectionsCollapseToTheirHeaderAndOpenAgain) {
    Start();
    Show(u"P3"_s);
    auto& origin = Get<CollapsibleFrame>("fraPuvod");
    auto& owner = Get<CollapsibleFrame>("fraMajitel");
    const int open = origin.height();
    const int ownerTop = owner.y();
    EXPECT_GE(open, CollapsibleFrame::Pixels(origin, 1956));
    EXPECT_GE(owner.height(), CollapsibleFrame::Pixels(owner, 1815));
    Click("fraPuvod.header");
    EXPECT_LE(origin.height(), CollapsibleFrame::Pixels(origin, 260) + 10);
    EXPECT_EQ(origin.heightForWidth(origin.width()), origin.height());
    EXPECT_EQ(owner.y(), ownerTop - (open - origin.height()));
    EXPECT_EQ(Value(u"Plemeno:"_s), nullptr);
    Click("fraPuvod.header");
    EXPECT_EQ(origin.height(), open);
    EXPECT_EQ(owner.y(), ownerTop);
    EXPECT_EQ(Text(u"Plemeno:"_s), u"Pudl"_s);
}

TEST_F(DogPanelTest, ALongTextMakesItsSectionHigherAtOnceAndAShortOneLowerAgain) {
    Start();
    Show(u"P3"_s);
    const auto& origin = Get<CollapsibleFrame>("fraPuvod");
    const auto& owner = Get<CollapsibleFrame>("fraMajitel");
    const int low = origin.height();
    Run("UPDATE Psi SET Poznamka = '" + Words(900) + "'");
    Show(u"P3"_s);
    const QLabel* note = Value(u"Poznámka:"_s);
    EXPECT_GE(note->height(), note->heightForWidth(note->width()));
    EXPECT_GT(origin.height(), low);
    EXPECT_GT(owner.y(), origin.geometry().bottom());
    Run("UPDATE Psi SET Poznamka = ''");
    Show(u"P3"_s);
    EXPECT_EQ(origin.height(), low);
}

TEST_F(DogPanelTest, ATextThatFitsIsLaidOutOnceTheWindowIsTooNarrowForIt) {
    Start();
    window.resize(1700, 900);
    Show(u"P3"_s);
    QTest::qWait(0);
    const auto& origin = Get<CollapsibleFrame>("fraPuvod");
    const int low = origin.height();
    const QLabel* note = Value(u"Poznámka:"_s);
    const int fits = note->width() * 2 / 3 / note->fontMetrics().horizontalAdvance(u"slovo "_s);
    Run("UPDATE Psi SET Poznamka = '" + Words(static_cast<std::size_t>(fits) * 6) + "', Otec = '" +
        Words(30) + "', DatumNar = '2005-05-14T00:00:00'");
    Show(u"P3"_s);
    QTest::qWait(0);
    EXPECT_EQ(origin.height(), low);
    for (const int width : {1500, 1300, 1100, 900, 800, 1000, 1400, 1700}) {
        window.resize(width, 900);
        QTest::qWait(0);
        EXPECT_GE(note->height(), note->heightForWidth(note->width())) << width;
        EXPECT_GE(origin.height(), origin.heightForWidth(origin.width())) << width;
        EXPECT_FALSE(origin.geometry().intersects(Get<QWidget>("fraMajitel").geometry()));
    }
    EXPECT_EQ(origin.height(), low);
}

TEST_F(DogPanelTest, ATitleOnTwoLinesHasItsRoomAtOnce) {
    Start();
    Show(u"P3"_s);
    auto& title = Get<QLabel>("lblItemTitle");
    const int low = title.height();
    Run("UPDATE Psi SET ChovnaStanice = '" + Words(140) + "'");
    Show(u"P3"_s);
    EXPECT_GE(title.height(), title.heightForWidth(title.width()));
    EXPECT_GT(title.height(), low);
    const QWidget* area = Get<QWidget>("picPesInfo").parentWidget();
    EXPECT_GE(area->mapTo(&window, QPoint()).y(),
              title.mapTo(&window, QPoint(0, title.height())).y());
    Run("UPDATE Psi SET ChovnaStanice = ''");
    Show(u"P3"_s);
    EXPECT_EQ(title.height(), low);
}

TEST_F(DogPanelTest, ATitleThatFitsHasItsRoomOnceTheWindowIsTooNarrowForIt) {
    Start();
    Show(u"P3"_s);
    Run("UPDATE Psi SET ChovnaStanice = '" + Words(40) + "'");
    Show(u"P3"_s);
    auto& title = Get<QLabel>("lblItemTitle");
    EXPECT_LT(title.height(), 2 * title.fontMetrics().height());
    for (const int width : {900, 700, 640}) {
        window.resize(width, 760);
        QTest::qWait(0);
        EXPECT_GE(title.height(), title.heightForWidth(title.width())) << width;
    }
    EXPECT_GE(title.height(), 2 * title.fontMetrics().height());
}

TEST_F(DogPanelTest, TheListsTakeTheHeightThatACollapsedSectionSetsFree) {
    Start();
    window.resize(1100, 1000);
    Show(u"P3"_s);
    QTest::qWait(0);
    const int before = Get<QWidget>("lvwSouteze").height();
    Click("fraMajitel.header");
    EXPECT_GT(Get<QWidget>("lvwSouteze").height(), before);
}

} // namespace
} // namespace lorvo
