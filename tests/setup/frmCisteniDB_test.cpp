#include "setup/frmCisteniDB.h"

#include "setup/setup_fixture.h"
#include "store/ostatni.h"
#include "store/vystavy.h"
#include "support/row_fields.h"

#include <QFrame>
#include <map>
#include <set>

namespace lorvo::test {
namespace {

constexpr const char* kTables[] = {"Barvy",         "Kruhy",          "Majitele", "Meny",
                                   "Oceneni",       "Ostatni",        "Plemena",  "Psi",
                                   "PsiOceneni",    "PsiVeVystavach", "Souteze",  "Uhrady",
                                   "Vazby_Souteze", "Vazby_Trida",    "Vystavy"};

/// Every table as its rows, each with its fields parted by bars.
using Content = std::map<std::string, Texts>;

Content ReadEverything() {
    Content content;
    RecordSet& set = TheDataModule().rsrsQuery1;
    for (const char* table : kTables) {
        Texts& rows = content[table];
        for (set.Open(std::string("SELECT * FROM ") + table); !set.Eof(); set.MoveNext()) {
            std::string row;
            for (const Value& field : FieldsOf(set))
                row += field.ToText().toStdString() + "|";
            rows.push_back(row);
        }
        set.Close();
    }
    return content;
}

class ClearingTest : public SetupTest {
  protected:
    /// A row or two in every table; the oldest show isn't the first by its name.
    static void FillEverything() {
        const int pudl = AddBreed("Pudl", {{"Pouzivat", true}, {"ID_Kruhu", 1}});
        AddBreed("Hnědý", {{"Parent", pudl}, {"Vlastni", true}});
        Add("Kruhy", {{"Nazev", Text("Kruh A")}});
        for (const char* table : {"Barvy", "Oceneni"})
            Add(table, {{"Nazev", Text("něco")}});
        Add("Majitele", {{"Prijmeni", Text("Malá")}});
        Add("Meny", {{"Nazev", Text("Koruna")}});
        Add("Souteze", {{"Nazev", Text("Páry")}, {"Cena", Currency::FromUnits(50)}});
        for (const char* show : {"Z", "A"})
            AddShow(show, {{"PoplatkyIClass1D1", Currency::FromUnits(300)},
                           {"PoplatkyIIClass9D2", Currency::FromUnits(400)}});
        const int dog = AddDog("Rex", pudl);
        Enter(dog, 1);
        AddLink("Vazby_Souteze", {{"ID_Psa", dog}, {"ID_Souteze", 1}});
        AddLink("PsiOceneni", {{"IDPsa", dog}, {"IDOceneni", 1}});
        AddLink("Vazby_Trida", {{"PlemenoID", pudl}, {"Trida", 1}});
        AddLink("Ostatni", {{"DatumVystavy", DateValue::FromCalendar(2005, 5, 14)}});
        Add("Uhrady", {{"ID_Psa", dog}, {"Kc", Currency::FromUnits(300)}});
    }
    /// Ticks the boxes of these slots and clears.
    void Clear(const std::set<int>& slots, MessageAnswer answer = MessageAnswer::Yes) {
        Open<frmCisteniDB>([&](QWidget& window) {
            for (const int slot : slots)
                Tick(window, ("chkTable(" + std::to_string(slot) + ")").c_str()).click();
            platform.ExpectMessage(
                Text("Vymazání databáze je zásadní krok. Ve vybraných tabulkách ztratíte veškerá "
                     "data bez možnosti opravy. Jste si jist?"),
                answer, MessageIcon::Exclamation, MessageButtons::YesNo, Text("Smazat data"));
            if (answer == MessageAnswer::Yes)
                platform.ExpectMessage(Text("Vybrané položky byly vymazány."), MessageAnswer::Ok,
                                       MessageIcon::Information, MessageButtons::Ok,
                                       Text("Smazat data"));
            Press(window, "cmdCleaa");
            EXPECT_FALSE(window.isVisible());
            EXPECT_EQ(platform.waitCursorDepth, 0);
        });
    }
    /// What is left of `content` by the rules, table by table.
    static Content Expected(Content content, const std::set<int>& slots) {
        for (const char* table : {"Psi", "Kruhy", "Vazby_Souteze", "PsiVeVystavach"})
            content[table].clear();
        content["Ostatni"] = {DateValue().ToIso() + "|"};
        const std::pair<int, const char*> kWhole[] = {{0, "PsiOceneni"}, {0, "Oceneni"},
                                                      {2, "Majitele"},   {4, "Souteze"},
                                                      {5, "Meny"},       {7, "Uhrady"}};
        for (const auto& [slot, table] : kWhole)
            if (slots.contains(slot))
                content[table].clear();
        if (slots.contains(1))
            content["Plemena"].pop_back();
        if (slots.contains(6)) {
            std::string zeros = "1|Z|||";
            for (int fee = 0; fee < kFeeColumns; ++fee)
                zeros += "0|";
            content["Vystavy"].front() = zeros;
        }
        if (slots.contains(8))
            content["Vystavy"].pop_back();
        return content;
    }
};

class ClearingChoiceTest : public ClearingTest, public ::testing::WithParamInterface<unsigned> {};

// kept: clearing-leaves-rings-of-breeds
TEST_P(ClearingChoiceTest, ClearsItsTablesAndNoOther) {
    constexpr int kSlots[] = {0, 1, 2, 4, 5, 6, 7, 8};
    std::set<int> slots;
    for (unsigned bit = 0; bit < std::size(kSlots); ++bit)
        if (GetParam() & (1u << bit))
            slots.insert(kSlots[bit]);
    FillEverything();
    const Content before = ReadEverything();
    Clear(slots);
    EXPECT_EQ(ReadEverything(), Expected(before, slots));
}

INSTANTIATE_TEST_SUITE_P(AllTicks, ClearingChoiceTest, ::testing::Range(0u, 256u));

TEST_F(ClearingTest, NoLeavesEveryTableAndClosesAllTheSame) {
    FillEverything();
    const Content before = ReadEverything();
    Clear({0, 1, 2, 4, 5, 6, 7, 8}, MessageAnswer::No);
    EXPECT_EQ(ReadEverything(), before);
    EXPECT_FALSE(Module().TreeDirty);
}

TEST_F(ClearingTest, MakesTheTreeStaleAndTheDateUnset) {
    FillEverything();
    Clear({});
    EXPECT_TRUE(Module().TreeDirty);
    EXPECT_TRUE(ShowWideValues()->DatumVystavy->IsZero());
}

// kept: clearing-fees-of-first-show
TEST_F(ClearingTest, OfThreeShowsTheOldestStaysWithItsFees) {
    FillEverything();
    AddShow("B");
    Clear({8});
    EXPECT_EQ(Nazvy(Shows()), Texts{"Z"});
    EXPECT_EQ(ShowFees(1)[0], Currency::FromUnits(300));
}

TEST_F(ClearingTest, StopsWhereItFailsAndWhatHasRunStaysRun) {
    AddDog("Rex", 1);
    Add("Majitele", {{"Prijmeni", Text("Malá")}});
    EXPECT_THROW(Open<frmCisteniDB>([&](QWidget& window) {
                     Tick(window, "chkTable(2)").click();
                     platform.ExpectMessage(
                         Text("Vymazání databáze je zásadní krok. Ve vybraných tabulkách ztratíte "
                              "veškerá data bez možnosti opravy. Jste si jist?"),
                         MessageAnswer::Yes);
                     Press(window, "cmdCleaa");
                 }),
                 StoreError);
    EXPECT_TRUE(Column("SELECT ID FROM Psi").empty());
    EXPECT_EQ(Column("SELECT ID FROM Majitele").size(), 1u);
}

TEST_F(ClearingTest, OffersItsTablesUntickedAndHidesTheColours) {
    Open<frmCisteniDB>([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Smazat data");
        EXPECT_EQ(Control<QLabel>(window, "lblInfo").text(),
                  Text("\nSeznamy PSŮ a KRUHŮ a veškeré vazby budou kompletně smazány. Z "
                       "následujících položek zatrhněte další tabulky, které se mají smazat. "
                       "Smazání je NEVRATNÁ operace."));
        QStringList captions;
        for (int slot = 0; slot <= 8; ++slot) {
            QCheckBox& box = Tick(window, ("chkTable(" + std::to_string(slot) + ")").c_str());
            EXPECT_FALSE(box.isChecked());
            EXPECT_EQ(box.isVisible(), slot != 3);
            captions << box.text();
        }
        EXPECT_EQ(captions.join(u'|'),
                  Text("Ocenění|Plemena (budou odstraněna pouze vlastní)|Majitelé|Barvy|Soutěže|"
                       "Měny|Ceny výstav a soutěží|Úhrady|Výstavy"));
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

} // namespace
} // namespace lorvo::test
