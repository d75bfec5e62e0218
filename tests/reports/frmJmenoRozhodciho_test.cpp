#include "reports/frmJmenoRozhodciho.h"

#include "store/kruhy.h"
#include "support/modal_driver.h"
#include "support/recording_main_window.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"
#include "support/window_walk.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class JudgesName : public testing::Test {
  protected:
    JudgesName() {
        show.Execute("INSERT INTO Kruhy (ID, Nazev, JmenoRozhodciho) VALUES (3, 'Kruh 3', NULL), "
                     "(4, 'Kruh 4', 'Petr Malý')");
        mainWindow.AddNode(u"K3"_s, u"Kruh 3"_s);
        mainWindow.AddNode(u"K4"_s, u"Kruh 4"_s);
    }
    /// Opens the window; what stands in its box is returned, and the button clicked.
    QString TypeAndClick(const QString& text, const char* button) {
        QString before;
        frmJmenoRozhodciho window(nullptr);
        WhileOpen([&] { OpenModal(window); },
                  [&](QWidget& open) {
                      auto& box = Control<QLineEdit>(open, "txtRozhodci");
                      before = box.text();
                      box.setText(text);
                      QTest::mouseClick(&Control<QPushButton>(open, button), Qt::LeftButton);
                      EXPECT_FALSE(open.isVisible());
                  });
        return before;
    }

    RecordingPlatform platform;
    TempDatabase show;
    RecordingMainWindow mainWindow;
};

} // namespace

TEST_F(JudgesName, IsStoredInTheSelectedRing) {
    mainWindow.selected = u"K3"_s;
    EXPECT_EQ(TypeAndClick(u"Jan O'Hara"_s, "cmdOK"), u"");
    EXPECT_EQ(RingByID(3)->JmenoRozhodciho, u"Jan O'Hara");
    EXPECT_EQ(TypeAndClick(u"nobody"_s, "cmdCancel"), u"Jan O'Hara");
    EXPECT_EQ(RingByID(3)->JmenoRozhodciho, u"Jan O'Hara");
    EXPECT_EQ(RingByID(4)->JmenoRozhodciho, u"Petr Malý");
}

TEST_F(JudgesName, WithoutASelectedNodeNothingIsReadOrStored) {
    EXPECT_EQ(TypeAndClick(u"nobody"_s, "cmdOK"), u"");
    EXPECT_EQ(RingByID(3)->JmenoRozhodciho, u"");
    EXPECT_EQ(RingByID(4)->JmenoRozhodciho, u"Petr Malý");
}

TEST_F(JudgesName, ItsWindowIsLaidOutForReadingAndForTheKeyboard) {
    frmJmenoRozhodciho window(nullptr);
    EXPECT_EQ(window.windowTitle(), u"Jméno rozhodčího");
    WalkWindow(window);
}

} // namespace lorvo::test
