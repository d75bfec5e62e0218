#include "forms/form_settings.h"

#include "forms/report_list.h"
#include "support/grid_lines.h"
#include "support/recording_platform.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// A window of 300 x 200 with a list of three columns, 100 wide each.
class WindowWithList : public QDialog {
  public:
    WindowWithList() {
        setObjectName(u"fm_Test"_s);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(u"Popis"_s, this));
        layout->addWidget(lvwDogs);
        lvwDogs->SetColumnWidths({100, 100, 100});
        resize(300, 200);
        move(40, 50);
    }

    ReportList* lvwDogs = new ReportList("lvwDogs", {u"A"_s, u"B"_s, u"C"_s}, this);
};

class FormSettingsTest : public ::testing::Test {
  protected:
    void Store(const char* key, const char* text) {
        platform.settings[QString::fromUtf8(key)] = QString::fromUtf8(text);
    }
    QString Stored(const char* key) { return platform.settings[QString::fromUtf8(key)]; }

    test::RecordingPlatform platform;
    WindowWithList window;
};

TEST_F(FormSettingsTest, AFreshMachineKeepsTheDesign) {
    LoadFormSettings(window, false);
    EXPECT_EQ(window.geometry(), QRect(40, 50, 300, 200));
    EXPECT_EQ(window.windowState(), Qt::WindowNoState);
    EXPECT_EQ(window.lvwDogs->columnWidth(0), 100);
    EXPECT_FALSE(test::ShowsGridLines(*window.lvwDogs));
}

TEST_F(FormSettingsTest, SetsTheFontOfAllControls) {
    LoadFormSettings(window, false);
    EXPECT_EQ(window.font().family(), u"Tahoma"_s);
    EXPECT_EQ(window.findChild<QLabel*>()->font().family(), u"Tahoma"_s);
}

TEST_F(FormSettingsTest, RestoresPositionAndSize) {
    Store("Form Positions\\fm_Test\\Top", "120");
    Store("Form Positions\\fm_Test\\Left", "130");
    Store("Form Positions\\fm_Test\\Height", "410");
    Store("Form Positions\\fm_Test\\Width", "520,4");
    LoadFormSettings(window, false);
    RestorePlace(window);
    EXPECT_EQ(window.geometry(), QRect(130, 120, 520, 410));
}

TEST_F(FormSettingsTest, AFixedBorderKeepsTheDesignedSize) {
    Store("Form Positions\\fm_Test\\Top", "120");
    Store("Form Positions\\fm_Test\\Left", "130");
    Store("Form Positions\\fm_Test\\Height", "410");
    Store("Form Positions\\fm_Test\\Width", "520");
    LoadFormSettings(window, true);
    RestorePlace(window);
    EXPECT_EQ(window.geometry(), QRect(130, 120, 300, 200));
}

TEST_F(FormSettingsTest, TextsThatAreNoNumbersAndPlacesAtTheEdgeKeepTheDesign) {
    Store("Form Positions\\fm_Test\\Top", "nahoře");
    Store("Form Positions\\fm_Test\\Left", "0");
    Store("Form Positions\\fm_Test\\Height", "-5");
    Store("Form Positions\\fm_Test\\WindowState", "0");
    LoadFormSettings(window, false);
    EXPECT_EQ(window.geometry(), QRect(40, 50, 300, 200));
}

TEST_F(FormSettingsTest, RestoresTheMaximisedState) {
    Store("Form Positions\\fm_Test\\WindowState", "2");
    LoadFormSettings(window, false);
    EXPECT_TRUE(window.isMaximized());
}

TEST_F(FormSettingsTest, RestoresWidthsAndPositionsOfColumns) {
    Store("ColWidths\\fm_Test\\lvwDogs\\ColWidth 2", "77");
    Store("ColWidths\\fm_Test\\lvwDogs\\ColWidth 3", "široký");
    Store("ColPos\\fm_Test\\lvwDogs\\ColPosition 1", "2");
    Store("ColPos\\fm_Test\\lvwDogs\\ColPosition 2", "3");
    Store("ColPos\\fm_Test\\lvwDogs\\ColPosition 3", "1");
    LoadFormSettings(window, false);
    const QHeaderView& header = *window.lvwDogs->header();
    EXPECT_EQ(header.sectionSize(1), 77);
    EXPECT_EQ(header.sectionSize(2), 100);
    EXPECT_EQ(header.visualIndex(0), 1);
    EXPECT_EQ(header.visualIndex(1), 2);
    EXPECT_EQ(header.visualIndex(2), 0);
    EXPECT_TRUE(header.sectionsMovable());
}

/// The columns in the order in which they stand, from 1.
std::vector<int> Order(const ReportList& list) {
    std::vector<int> order;
    for (int place = 0; place < list.ColumnCount(); ++place)
        order.push_back(list.header()->logicalIndex(place) + 1);
    return order;
}

TEST_F(FormSettingsTest, StoredPlacesAreTakenColumnByColumn) {
    window.lvwDogs->InsertColumn(3, u"Čtvrtý"_s);
    Store("ColPos\\fm_Test\\lvwDogs\\ColPosition 1", "3");
    Store("ColPos\\fm_Test\\lvwDogs\\ColPosition 2", "2");
    LoadFormSettings(window, false);
    EXPECT_EQ(Order(*window.lvwDogs), (std::vector<int>{3, 2, 1, 4}));
}

TEST_F(FormSettingsTest, EveryOrderOfColumnsComesBack) {
    std::vector<int> order = {0, 1, 2};
    do {
        for (int place = 0; place < 3; ++place) {
            QHeaderView& header = *window.lvwDogs->header();
            header.moveSection(header.visualIndex(order[static_cast<std::size_t>(place)]), place);
        }
        SaveFormSettings(window);
        WindowWithList again;
        LoadFormSettings(again, false);
        EXPECT_EQ(Order(*again.lvwDogs), Order(*window.lvwDogs));
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(FormSettingsTest, AnyWholeOrderOfColumnsComesBack) {
    window.lvwDogs->InsertColumn(3, u"D"_s);
    const QList<int> positions = {3, 4, 2, 1};
    for (int column = 0; column < 4; ++column)
        platform.settings[u"ColPos\\fm_Test\\lvwDogs\\ColPosition %1"_s.arg(column + 1)] =
            QString::number(positions[column]);
    LoadFormSettings(window, false);
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(window.lvwDogs->header()->visualIndex(column) + 1, positions[column]);
}

TEST_F(FormSettingsTest, TheFirstColumnMovesToo) {
    LoadFormSettings(window, false);
    EXPECT_TRUE(window.lvwDogs->header()->isFirstSectionMovable());
}

TEST_F(FormSettingsTest, AnAxisWithoutAPlaceKeepsTheDesignedOne) {
    Store("Form Positions\\fm_Test\\Left", "130");
    RestorePlace(window);
    EXPECT_EQ(window.pos(), QPoint(130, 50));
}

TEST_F(FormSettingsTest, APlaceOutOfSightIsBroughtBack) {
    Store("Form Positions\\fm_Test\\Top", "1e300");
    Store("Form Positions\\fm_Test\\Left", "2500");
    RestorePlace(window);
    const QRect space = window.screen()->availableGeometry();
    EXPECT_TRUE(space.contains(window.geometry()));
}

TEST_F(FormSettingsTest, APlaceInSightStays) {
    const int left = window.screen()->availableGeometry().right() - 150;
    Store("Form Positions\\fm_Test\\Left", QByteArray::number(left).constData());
    RestorePlace(window);
    EXPECT_EQ(window.x(), left);
}

TEST_F(FormSettingsTest, NoStoredSizeExceedsTheScreenOrFallsBelowWhatIsNeeded) {
    Store("Form Positions\\fm_Test\\Height", "2500");
    Store("Form Positions\\fm_Test\\Width", "1");
    LoadFormSettings(window, false);
    EXPECT_EQ(window.height(), LargestSize(window).height());
    EXPECT_EQ(window.width(), window.minimumSizeHint().width());
}

TEST_F(FormSettingsTest, AColumnOfNoWidthCanBeSeen) {
    Store("ColWidths\\fm_Test\\lvwDogs\\ColWidth 1", "0");
    Store("ColWidths\\fm_Test\\lvwDogs\\ColWidth 2", "2000000000");
    LoadFormSettings(window, false);
    EXPECT_GT(window.lvwDogs->columnWidth(0), 0);
    EXPECT_LE(window.lvwDogs->columnWidth(1), 10'000);
}

TEST_F(FormSettingsTest, AWideningIsNotStored) {
    SaveFormSettings(window, 120);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\Width"), u"180"_s);
}

TEST_F(FormSettingsTest, AColumnThatNoLongerExistsHasNoEffect) {
    Store("ColPos\\fm_Test\\lvwDogs\\ColPosition 4", "1");
    Store("ColPos\\fm_Test\\lvwDogs\\ColPosition 1", "9");
    LoadFormSettings(window, false);
    EXPECT_EQ(window.lvwDogs->header()->visualIndex(0), 0);
}

TEST_F(FormSettingsTest, GridLinesAreSwitchedOnAndNeverOff) {
    window.lvwDogs->SetGridLines(true);
    Store("Sys\\ShowGrid", "0");
    LoadFormSettings(window, false);
    EXPECT_TRUE(test::ShowsGridLines(*window.lvwDogs));
    window.lvwDogs->SetGridLines(false);
    Store("Sys\\ShowGrid", "1");
    LoadFormSettings(window, false);
    EXPECT_TRUE(test::ShowsGridLines(*window.lvwDogs));
}

TEST_F(FormSettingsTest, StoresWhatItReads) {
    window.lvwDogs->header()->moveSection(0, 2);
    SaveFormSettings(window);
    EXPECT_EQ(Stored("ColWidths\\fm_Test\\lvwDogs\\ColWidth 1"), u"100"_s);
    EXPECT_EQ(Stored("ColPos\\fm_Test\\lvwDogs\\ColPosition 1"), u"3"_s);
    EXPECT_EQ(Stored("ColPos\\fm_Test\\lvwDogs\\ColPosition 2"), u"1"_s);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\WindowState"), u"0"_s);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\Top"), u"50"_s);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\Left"), u"40"_s);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\Height"), u"200"_s);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\Width"), u"300"_s);
}

TEST_F(FormSettingsTest, AMaximisedWindowKeepsTheNormalSizeItHadLast) {
    Store("Form Positions\\fm_Test\\Height", "410");
    window.setWindowState(Qt::WindowMaximized);
    SaveFormSettings(window);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\WindowState"), u"2"_s);
    EXPECT_EQ(Stored("Form Positions\\fm_Test\\Height"), u"410"_s);
}

} // namespace
} // namespace lorvo
