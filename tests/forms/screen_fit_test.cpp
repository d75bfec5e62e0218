// No window is larger than the screen, and none is out of sight.
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/form_settings.h"
#include "forms/report_list.h"
#include "platform/failure_guard.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using test::WhileOpen;

/// A window of many lines above its buttons.
class LongForm : public Form {
  public:
    LongForm(Border border, int lines) : Form("frmLong", u"Dlouhé okno"_s, border, nullptr) {
        auto* column = new QVBoxLayout(this);
        for (int i = 0; i < lines; ++i)
            column->addWidget(Named(new QLineEdit(this), ElementName("txtbox", i)));
        auto* cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
        Connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
        column->addLayout(ButtonRow({cmdOK}));
    }
};

class ScreenFitTest : public ::testing::Test {
  protected:
    void Open(Form& form, const std::function<void(QWidget&)>& inside) {
        WhileOpen([&] { OpenModal(form); }, inside);
    }
    static QRect Space(const QWidget& window) { return window.screen()->availableGeometry(); }

    test::RecordingPlatform platform;
};

TEST_F(ScreenFitTest, ContentThatIsTooHighScrollsAboveTheButtons) {
    for (const auto border : {Form::Border::Fixed, Form::Border::Sizable}) {
        LongForm form(border, 60);
        Open(form, [](QWidget& window) {
            EXPECT_TRUE(Space(window).contains(window.geometry()))
                << QTest::toString(window.geometry());
            auto& last = test::Control<QLineEdit>(window, "txtbox(59)");
            auto& ok = test::Control<QPushButton>(window, "cmdOK");
            EXPECT_TRUE(window.rect().contains(ok.mapTo(&window, ok.rect().bottomRight())));
            test::Control<QLineEdit>(window, "txtbox(0)").setFocus();
            for (int i = 0; i < 60; ++i) // by the Tab key, as a clerk gets there
                if (window.focusWidget() != &last)
                    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(window.focusWidget(), &last);
            EXPECT_FALSE(last.visibleRegion().isEmpty());
        });
    }
}

TEST_F(ScreenFitTest, WhatGetsTheKeyboardComesInSightHoweverItGotIt) {
    LongForm form(Form::Border::Fixed, 60);
    Open(form, [](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        for (const char* name : {"txtbox(59)", "txtbox(0)", "txtbox(30)"}) {
            auto& box = test::Control<QLineEdit>(window, name);
            EXPECT_TRUE(box.visibleRegion().isEmpty()) << name;
            box.setFocus();
            EXPECT_EQ(box.visibleRegion().boundingRect().size(), box.size()) << name;
        }
    });
}

TEST_F(ScreenFitTest, OfAListThatIsHigherThanItsPlaceTheBeginningComesInSightAndThenEachRow) {
    LongForm form(Form::Border::Fixed, 20);
    auto* list = new ReportList("lvwLong", {u"Jméno"_s}, &form);
    list->setMinimumHeight(3000);
    for (int row = 0; row < 100; ++row)
        list->AddRow({QString::number(row), {}, {{u"Alík"_s}}});
    static_cast<QVBoxLayout*>(form.layout())->insertWidget(20, list);
    Open(form, [list](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        list->setFocus();
        EXPECT_FALSE(list->header()->viewport()->visibleRegion().isEmpty());
        const QModelIndex last = list->model()->index(99, 0);
        EXPECT_FALSE(list->viewport()->visibleRegion().contains(list->visualRect(last).center()));
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End})
            QTest::keyClick(list, key);
        EXPECT_TRUE(list->viewport()->visibleRegion().contains(list->visualRect(last).center()));
    });
}

TEST_F(ScreenFitTest, AWindowThatFitsStaysAsItWasDesigned) {
    LongForm form(Form::Border::Fixed, 3);
    Open(form, [](QWidget& window) { EXPECT_FALSE(window.findChild<QScrollArea*>()); });
}

TEST_F(ScreenFitTest, ADesignedSizeIsBoundedToTheScreen) {
    LongForm form(Form::Border::Sizable, 3);
    form.resize(5000, 5000);
    Open(form, [](QWidget& window) { EXPECT_EQ(window.size(), LargestSize(window)); });
}

TEST_F(ScreenFitTest, OpensWhereItStoodAndIsBroughtBackInSight) {
    platform.settings[u"Form Positions\\frmLong\\Top"_s] = u"60"_s;
    platform.settings[u"Form Positions\\frmLong\\Left"_s] = u"70"_s;
    LongForm form(Form::Border::Fixed, 3);
    Open(form, [](QWidget& window) { EXPECT_EQ(window.pos(), QPoint(70, 60)); });
    platform.settings[u"Form Positions\\frmLong\\Left"_s] = u"25000"_s;
    LongForm again(Form::Border::Fixed, 3);
    Open(again, [](QWidget& window) { EXPECT_TRUE(Space(window).contains(window.geometry())); });
}

TEST_F(ScreenFitTest, AnAxisWithoutAPlaceIsInTheMiddleByTheRealSize) {
    platform.settings[u"Form Positions\\frmLong\\Top"_s] = u"60"_s;
    LongForm form(Form::Border::Sizable, 3);
    form.resize(500, 300);
    Open(form, [](QWidget& window) {
        EXPECT_EQ(window.y(), 60);
        EXPECT_NEAR(window.geometry().center().x(), Space(window).center().x(), 12);
    });
}

TEST_F(ScreenFitTest, AWideningIsNotStored) {
    class Wide : public LongForm {
      public:
        Wide() : LongForm(Border::Sizable, 3) { resize(300, 200); }
        void Load() override { WidenBy(150); }
    };
    for (int opening = 0; opening < 2; ++opening) {
        Wide form;
        Open(form, [](QWidget& window) { EXPECT_EQ(window.width(), 450); });
    }
    EXPECT_EQ(platform.settings[u"Form Positions\\frmLong\\Width"_s], u"300"_s);
}

TEST_F(ScreenFitTest, F1OpensTheHelpWhereverTheKeyboardIs) {
    LongForm form(Form::Border::Fixed, 3);
    Open(form, [](QWidget& window) {
        QTest::keyClick(&test::Control<QLineEdit>(window, "txtbox(0)"), Qt::Key_F1);
    });
    EXPECT_EQ(platform.openedFiles.size(), 1);
}

TEST_F(ScreenFitTest, RowsOfEveryKindKeepTheirPlacesInWhatScrolls) {
    LongForm form(Form::Border::Sizable, 60);
    auto* column = static_cast<QVBoxLayout*>(form.layout());
    auto* pair = new QHBoxLayout;
    auto* left = Named(new QLineEdit(&form), u"left"_s);
    auto* right = Named(new QLineEdit(&form), u"right"_s);
    pair->addWidget(left);
    pair->addWidget(right);
    column->insertLayout(0, pair);
    column->insertSpacing(1, 40);
    Open(form, [&](QWidget& window) {
        const auto& first = test::Control<QLineEdit>(window, "txtbox(0)");
        EXPECT_NE(test::Control<QScrollArea>(window, "scrContent").widget(), nullptr);
        EXPECT_EQ(left->y(), right->y());
        EXPECT_LT(left->geometry().right(), right->x());
        EXPECT_GE(first.y(), left->geometry().bottom() + 40);
    });
}

} // namespace
} // namespace lorvo
