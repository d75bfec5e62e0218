// The walk's checks find what they look for.

#include "forms/report_list.h"
#include "support/spoken_cells.h"
#include "support/window_pixels.h"
#include "support/window_walk.h"

#include <QGroupBox>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor kRed(200, 0, 0);

class WalkChecks : public ::testing::Test {
  protected:
    WalkChecks() {
        window_.setObjectName(u"frmWalked"_s);
        column_ = new QVBoxLayout(&window_);
    }
    void Show() {
        window_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }
    ReportList& AddList(std::vector<ReportRow> rows) {
        auto* list = new ReportList("lvwList", {u"Jméno"_s}, &window_);
        list->SetIcons({QIcon(u":/lorvo/icons/dog.png"_s)});
        list->SetRows(std::move(rows));
        column_->addWidget(list);
        Show();
        return *list;
    }

    QWidget window_;
    QVBoxLayout* column_;
};

TEST_F(WalkChecks, ANameThatOnlyItsColourTellsOfIsFound) {
    AddList({{u"P1"_s, {}, {{u"Alík"_s}}}, {u"P2"_s, {}, {{u"Bára"_s, kRed}}}});
    EXPECT_NONFATAL_FAILURE(CheckSpokenCells(window_), "Bára");
}

TEST_F(WalkChecks, SpokenColoursAmountsAndColoursOfAWholeColumnAreInOrder) {
    AddList({{u"P1"_s, {}, {{u"Alík"_s}}}, {u"P2"_s, {}, {{u"Bára"_s, kRed, -1, u"fena"_s}}}});
    CheckSpokenCells(window_);
    AddList({{u"P1"_s, {}, {{u"300 Kč"_s}}}, {u"P2"_s, {}, {{u"-300 Kč"_s, kRed}}}});
    CheckSpokenCells(window_);
    AddList({{u"P1"_s, {}, {{u"Alík"_s, kRed}}}, {u"P2"_s, {}, {{u"Bára"_s, kRed}}}});
    CheckSpokenCells(window_);
}

TEST_F(WalkChecks, AHeadingOfAFrameThatIsTooPaleIsFound) {
    auto* frame = new QGroupBox(u"Majitel"_s, &window_);
    frame->setMinimumSize(200, 80);
    column_->addWidget(frame);
    Show();
    CheckLegible(window_);
    QPalette pale = frame->palette();
    pale.setColor(QPalette::WindowText, pale.color(QPalette::Window).darker(120));
    frame->setPalette(pale);
    EXPECT_NONFATAL_FAILURE(CheckLegible(window_), "Majitel");
}

TEST_F(WalkChecks, AWordThatIsCutIsFound) {
    auto* label = new QLabel(u"Nepomucká-Krkoškovičová"_s, &window_);
    label->setWordWrap(true);
    label->setFixedSize(60, 60);
    column_->addWidget(label);
    EXPECT_NONFATAL_FAILURE(WalkWindow(window_), "is cut within a word");
}

} // namespace
} // namespace lorvo::test
