// A show set up from the delivered database by its windows alone, up to the first entry and the
// catalogue numbers.

#include "app/module_values.h"
#include "forms/report_list.h"
#include "mainwindow/fm_main.h"
#include "setup/breed_tree.h"
#include "store/psi.h"
#include "store/vystavy.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QAction>
#include <QDateEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class SetUpShow : public ::testing::Test {
  protected:
    SetUpShow() {
        Module() = ModuleValues();
        platform.now = DateValue::FromCalendar(2005, 4, 1);
        window->Start();
        QCoreApplication::processEvents();
    }
    ~SetUpShow() override {
        window.reset();
        Module() = ModuleValues();
    }

    void OpenBy(const char* command, const std::function<void(QWidget&)>& inside) {
        OpenIn(*window, command, inside);
    }
    static void OpenIn(QWidget& from, const char* command,
                       const std::function<void(QWidget&)>& inside) {
        WhileOpen([&] { Control<QAction>(from, command).trigger(); }, inside);
    }
    static void Press(QWidget& from, const char* button) {
        Control<QPushButton>(from, button).click();
    }
    static void SetText(QWidget& from, const char* box, const QString& text) {
        Control<QLineEdit>(from, box).setText(text);
    }
    /// Types into the edit that goes on in a tree or list.
    static void TypeInPlace(QWidget& view, const QString& text) {
        const auto editors = view.findChildren<QLineEdit*>();
        ASSERT_FALSE(editors.isEmpty());
        editors.last()->selectAll();
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, editors.last(), Qt::Key_unknown, QString(letter), {});
        QTest::keyClick(editors.last(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    void AddRing(const QString& name) {
        Control<QAction>(*window, "ADD:CIRCLE").trigger();
        TypeInPlace(Control<QWidget>(*window, "tvwMain"), name);
    }

    void SettleDatesAndCurrency();
    void SettleShows();
    void SettleBreeds();
    void EnterDog();
    void NumberDogs();

    RecordingPlatform platform;
    TempDatabase database{TempDatabase::Content::Delivered};
    std::unique_ptr<fm_main> window = std::make_unique<fm_main>();
};

constexpr int kShepherd = kSpecialBreedID;
constexpr int kPoodle = 172 + 783;

void SetUpShow::SettleDatesAndCurrency() {
    OpenBy("SETTINGS", [&](QWidget& settings) {
        OpenIn(settings, "CURRENCIESLIST:ADD", [](QWidget& editor) {
            SetText(editor, "txtEditCurr(0)", u"Koruna česká"_s);
            SetText(editor, "txtEditCurr(1)", u"Kč"_s);
            Press(editor, "cmdOK");
        });
        Control<QDateEdit>(settings, "dtMeeting").setDate({2005, 5, 14});
        Control<QDateEdit>(settings, "dtPrvniUzaverka").setDate({2005, 4, 10});
        Control<QDateEdit>(settings, "dtDruhaUzaverka").setDate({2005, 4, 24});
        Press(settings, "cmdOK");
    });
}

void SetUpShow::SettleShows() {
    OpenBy("TABLES:VYSTAVY", [&](QWidget& list) {
        auto& shows = Control<ReportList>(list, "lvwList");
        Control<QAction>(list, "VYSTAVY:ADD").trigger();
        TypeInPlace(shows, u"Krajská výstava"_s);
        for (int row = 0; row < 2; ++row) {
            shows.SelectRow(row);
            OpenIn(list, "VYSTAVY:EDIT", [row](QWidget& editor) {
                for (int slot = 0; slot < 18; ++slot)
                    for (int closing = 1; closing <= 2; ++closing)
                        SetText(editor,
                                u"txtPrice%1(%2)"_s.arg(closing).arg(slot).toLatin1().constData(),
                                QString::number(1000 * row + 100 * closing + slot));
                Press(editor, "cmdOK");
            });
        }
        Press(list, "cmdOK");
    });
}

void SetUpShow::SettleBreeds() {
    OpenBy("TABLES:PLEMENA", [&](QWidget& window_) {
        auto& breeds = Control<BreedTree>(window_, "tvwPlemena");
        int ring = 1;
        for (const int breed : {kShepherd, kPoodle}) {
            breeds.SelectNode(*breeds.Model().Find(breed));
            QTest::keyClick(&breeds, Qt::Key_Space);
            platform.ExpectMenu(10000 + ring++);
            const QModelIndex node = breeds.Model().IndexOf(*breeds.SelectedNode());
            QTest::mouseClick(breeds.viewport(), Qt::RightButton, {},
                              breeds.visualRect(node).center());
        }
        OpenIn(window_, "PLEMENA:ADD", [](QWidget& naming) {
            SetText(naming, "txtPlemenoName", u"Pudl hnědý"_s);
            Press(naming, "cmdOK");
        });
    });
}

void SetUpShow::EnterDog() {
    window->SelectNode(u"R%1"_s.arg(kPoodle));
    OpenBy("ADD:DOG", [](QWidget& editor) {
        SetText(editor, "txtbox(0)", u"Alík"_s);
        Control<QDateEdit>(editor, "dtBorn").setDate({2003, 5, 14});
        Control<QRadioButton>(editor, "optClasses(4)").click();
        Press(editor, "cmdAddName");
        SetText(editor, "txtbox(7)", u"Jana"_s);
        SetText(editor, "txtbox(4)", u"Malá"_s);
        SetText(editor, "txtbox(8)", u"Lesní 1"_s);
        SetText(editor, "txtbox(9)", u"28002"_s);
        SetText(editor, "txtbox(10)", u"Kolín"_s);
        Press(editor, "cmd_OK");
        EXPECT_FALSE(editor.isVisible());
    });
}

void SetUpShow::NumberDogs() {
    OpenBy("SETTINGS", [&](QWidget& settings) {
        EXPECT_FALSE(Control<QDateEdit>(settings, "dtMeeting").isEnabled());
        platform.ExpectMessage(u"Určitě vygenerovat pořadová čísla psů?"_s, MessageAnswer::Yes);
        Press(settings, "cmdGenerateNumbers");
        Press(settings, "cmdOK");
    });
}

TEST_F(SetUpShow, FromTheDeliveredDatabaseToTheFirstNumber) {
    SettleDatesAndCurrency();
    SettleShows();
    AddRing(u"Kruh A"_s);
    AddRing(u"Kruh B"_s);
    SettleBreeds();
    EnterDog();
    NumberDogs();

    EXPECT_EQ(Module().MainCurrency, u"Kč");
    const std::vector<Vystavy> shows = Shows();
    ASSERT_EQ(shows.size(), 2u);
    EXPECT_EQ(shows[0].Uzaverka1, DateValue::FromCalendar(2005, 4, 10));
    EXPECT_FALSE(shows[1].Uzaverka1);
    EXPECT_EQ(ShowFees(shows[1].ID)[35], Currency::FromUnits(1217));
    EXPECT_EQ(window->Nodes().Get(u"R%1"_s.arg(kShepherd)).parent->Key(), u"K1");
    EXPECT_EQ(window->Nodes().Get(u"R%1"_s.arg(kPoodle)).parent->Key(), u"K2");
    EXPECT_EQ(DogByID(1)->Cislo, 1);
    EXPECT_EQ(window->NodeText(u"P1"_s), u"1 Alík");
    EXPECT_TRUE(DogByID(1)->PrvniPes);
}

} // namespace
} // namespace lorvo::test
