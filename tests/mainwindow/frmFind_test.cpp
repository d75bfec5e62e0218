// Searching in the whole main window: the search window, F3 and Home.
#include "mainwindow/fm_main_fixture.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"
#include "support/modal_driver.h"
#include "support/window_walk.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using test::WhileOpen;

/// In the tree's order: K0, K1, R10 Pudl, P100 Alík, P101 Brok, R11 Vipet, P102 12 Šárka.
class frmFindTest : public MainWindowTest {
  protected:
    frmFindTest() {
        AddSmallShow();
        AddDog(102, "Šárka", 11);
        database_.Execute("UPDATE Psi SET Cislo = 12 WHERE ID = 102");
    }

    /// Opens the window over the tree by Ctrl+F and lets `inside` work in it.
    void Search(const std::function<void(QWidget&)>& inside) {
        if (!window_)
            Start();
        Tree().setFocus();
        WhileOpen([this] { QTest::keyClick(&Tree(), Qt::Key_F, Qt::ControlModifier); }, inside);
    }
    static QLineEdit& Box(QWidget& window) { return test::Control<QLineEdit>(window, "txtFind"); }
    static QPushButton& Button(QWidget& window) {
        return test::Control<QPushButton>(window, "cdmOK");
    }
    /// Types the text, presses the button that often and returns the nodes selected meanwhile.
    QStringList Find(QWidget& window, const QString& text, int times = 1) {
        Box(window).setText(text);
        QStringList found;
        for (; times > 0; --times) {
            Button(window).click();
            found << window_->SelectedNode();
        }
        return found;
    }
};

TEST_F(frmFindTest, EveryControlHasItsNameItsCaptionAndItsPlace) {
    Search([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Hledat text"_s);
        EXPECT_TRUE(Button(window).isDefault());
        test::WalkWindow(window);
    });
}

TEST_F(frmFindTest, GoesFromMatchToMatchAndShowsTheLastOneOnReturn) {
    Search([this](QWidget& window) {
        EXPECT_EQ(Button(window).text(), u"Hledat"_s);
        EXPECT_EQ(Find(window, u"K"_s), QStringList{u"P100"_s});
        EXPECT_EQ(Button(window).text(), u"Další"_s);
        EXPECT_EQ(Find(window, u"K"_s, 2), (QStringList{u"P101"_s, u"P102"_s}));
        test::Control<QPushButton>(window, "cmdCancel").click();
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(Title().startsWith(u"Šárka"_s)) << Title().toStdString();
}

TEST_F(frmFindTest, PastTheLastMatchNothingHappensUntilTheWindowIsOpenedAgain) {
    Search([this](QWidget& window) {
        EXPECT_EQ(Find(window, u"brok"_s, 3), (QStringList{u"P101"_s, u"P101"_s, u"P101"_s}));
        EXPECT_EQ(Find(window, u"alík"_s), QStringList{u"P101"_s});
        EXPECT_TRUE(window.isVisible());
    });
    Search([this](QWidget& window) {
        EXPECT_EQ(Box(window).text(), QString());
        EXPECT_EQ(Find(window, u"alík"_s), QStringList{u"P100"_s});
    });
}

TEST_F(frmFindTest, NothingFoundKeepsSelectionAndCaption) {
    Search([this](QWidget& window) {
        EXPECT_EQ(Find(window, u"kruh"_s), QStringList{QString()});
        EXPECT_EQ(Button(window).text(), u"Hledat"_s);
        EXPECT_EQ(Find(window, u"12"_s), QStringList{u"P102"_s});
    });
}

TEST_F(frmFindTest, AnEmptyTextKeepsWhatWasSearchedLast) {
    Search([this](QWidget& window) { EXPECT_EQ(Find(window, u"brok"_s).size(), 1); });
    Search([this](QWidget& window) {
        EXPECT_EQ(Find(window, QString()), QStringList{u"P101"_s});
        EXPECT_TRUE(window.isVisible());
    });
    window_->SelectNode(u"P100"_s);
    QTest::keyClick(&Tree(), Qt::Key_F3);
    EXPECT_EQ(window_->SelectedNode(), u"P101"_s);
}

TEST_F(frmFindTest, TheTextIsAPattern) {
    Search([this](QWidget& window) {
        EXPECT_EQ(Find(window, u"[bv]?[op]"_s, 2), (QStringList{u"P101"_s, u"R11"_s}));
    });
}

TEST_F(frmFindTest, ATextThatIsNoPatternIsToldAndTheWindowStays) {
    const QString told = u"Neplatný vzor hledání: k závorce „[“ chybí „]“."_s;
    const auto expect = [&] {
        platform_.ExpectMessage(told, MessageAnswer::Ok, MessageIcon::Exclamation,
                                MessageButtons::Ok, u"Hledat text"_s);
    };
    Search([&](QWidget& window) {
        expect();
        EXPECT_EQ(Find(window, u"["_s), QStringList{QString()});
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(Button(window).text(), u"Hledat"_s);
    });
    expect();
    QTest::keyClick(&Tree(), Qt::Key_F3);
    EXPECT_EQ(window_->SelectedNode(), QString());
}

TEST_F(frmFindTest, F3GoesOnWhereTheWindowStoppedAndHomeBeginsAnew) {
    Search([this](QWidget& window) { Find(window, u"k"_s); });
    QStringList found;
    for (int times = 0; times < 3; ++times) {
        QTest::keyClick(&Tree(), Qt::Key_F3);
        found << window_->SelectedNode();
    }
    EXPECT_EQ(found, (QStringList{u"P101"_s, u"P102"_s, u"P102"_s}));
    QTest::keyClick(&Tree(), Qt::Key_Home);
    QTest::keyClick(&Tree(), Qt::Key_F3);
    EXPECT_EQ(window_->SelectedNode(), u"P100"_s);
}

TEST_F(frmFindTest, F3WithoutATextOpensTheWindow) {
    Start();
    WhileOpen([this] { QTest::keyClick(&Tree(), Qt::Key_F3); },
              [](QWidget& window) { EXPECT_EQ(window.objectName(), u"frmFind"_s); });
}

TEST_F(frmFindTest, AStepBackToARemovedNodeFailsByItsName) {
    Start();
    window_->ShowNodeInfo(u"P100"_s);
    window_->ShowNodeInfo(u"P101"_s);
    Tree().Nodes().Remove(&Tree().Nodes().Get(u"P100"_s));
    Control<QPushButton>(u"cmdHistoryBack"_s).click();
    try {
        RethrowFailure();
        FAIL() << "a node was shown that is gone";
    } catch (const Error& error) {
        EXPECT_NE(std::string(error.what()).find("P100"), std::string::npos) << error.what();
    }
}

} // namespace
} // namespace lorvo
