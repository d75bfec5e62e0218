#include "dogs/frmEditMan.h"

#include "dogs/exhibitors_fixture.h"
#include "support/modal_driver.h"
#include "support/window_walk.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace lorvo::test {

namespace {

class OwnerEditorTest : public ExhibitorsTest {
  protected:
    OwnerEditorTest() {
        Module().CurrentOwner = AddOwner("Jana", {{"Prijmeni", Text("Malá")},
                                                  {"Ulice", Text("Lesní 1")},
                                                  {"Mesto", Text("Kolín")},
                                                  {"PSC", 1234},
                                                  {"Telefon", Text("777 123")}});
    }

    static void Open(const std::function<void(QWidget&)>& inside) {
        frmEditMan window(nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
    static QLineEdit& Box(QWidget& window, int index) {
        return Control<QLineEdit>(window, ("txtItem(" + std::to_string(index) + ")").c_str());
    }
    static void Press(QWidget& window, const char* button) {
        Control<QPushButton>(window, button).click();
    }
    static std::string Stored(const std::string& field) {
        return Column("SELECT " + field + " FROM Majitele").front();
    }
    /// Stores the owner with that post code; returns what the database then holds.
    static std::string StoredPostCode(const char* typed) {
        Open([typed](QWidget& window) {
            Box(window, 3).setText(Text(typed));
            Press(window, "cmdOK");
            EXPECT_FALSE(window.isVisible());
        });
        return Stored("PSC");
    }
};

TEST_F(OwnerEditorTest, OpensOnTheOwner) {
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Majitel"));
        const char* const texts[] = {"Jana", "Lesní 1", "Kolín", "012 34", "777 123", "@", ""};
        for (int i = 0; i < 7; ++i)
            EXPECT_EQ(Box(window, i).text(), Text(texts[i]));
    });
}

TEST_F(OwnerEditorTest, StoresTrimmedTextsAndLeavesTheSurname) {
    Open([](QWidget& window) {
        const char* const texts[] = {" Jana O'Neill ", " Polní 2", "Zlín ", "760 01", " 1 ",
                                     " a@b.cz ",       " Polsko "};
        for (int i = 0; i < 7; ++i)
            Box(window, i).setText(Text(texts[i]));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Stored("Jmeno"), "Jana O'Neill");
    EXPECT_EQ(Stored("Ulice"), "Polní 2");
    EXPECT_EQ(Stored("Mesto"), "Zlín");
    EXPECT_EQ(Stored("PSC"), "76001");
    EXPECT_EQ(Stored("Telefon"), "1");
    EXPECT_EQ(Stored("Email"), "a@b.cz");
    EXPECT_EQ(Stored("Stat"), "Polsko");
    EXPECT_EQ(Stored("Prijmeni"), "Malá");
}

TEST_F(OwnerEditorTest, ALoneAtSignIsNoAddress) {
    Open([](QWidget& window) { Press(window, "cmdOK"); });
    EXPECT_EQ(Stored("Email"), "");
    Open([](QWidget& window) {
        Box(window, 5).setText(Text("@@"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Stored("Email"), "@@");
}

TEST_F(OwnerEditorTest, TakesFiveDigitsZeroOrNothingAsAPostCode) {
    EXPECT_EQ(StoredPostCode("1 10 00"), "11000");
    EXPECT_EQ(StoredPostCode("  "), "0");
    EXPECT_EQ(StoredPostCode("012 34"), "1234");
    EXPECT_EQ(StoredPostCode("0"), "0");
}

TEST_F(OwnerEditorTest, RefusesAnyOtherPostCodeAndStays) {
    Open([this](QWidget& window) {
        for (const char* refused : {"1234", "123456", "1234a", "00", "-1234", "１２３４５"}) {
            Box(window, 3).setText(Text(refused));
            platform.ExpectMessage(Text("Chyba v zadání PSČ"), MessageAnswer::Ok, MessageIcon::Stop,
                                   MessageButtons::Ok, window.windowTitle());
            Press(window, "cmdOK");
            EXPECT_TRUE(window.isVisible());
        }
    });
    EXPECT_EQ(Stored("PSC"), "1234");
}

TEST_F(OwnerEditorTest, StornoStoresNothing) {
    Open([](QWidget& window) {
        Box(window, 0).setText(Text("Eva"));
        Press(window, "cmdCancel");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(Stored("Jmeno"), "Jana");
    EXPECT_TRUE(IsNull("SELECT Stat FROM Majitele"));
}

TEST_F(OwnerEditorTest, AnOwnerWhoIsGoneFails) {
    Module().CurrentOwner = 99;
    EXPECT_THROW(Open([](QWidget&) {}), StoreError);
}

TEST_F(OwnerEditorTest, IsAWindowThatReadsWell) {
    frmEditMan window(nullptr);
    WalkWindow(window);
}

} // namespace

} // namespace lorvo::test
