#include "app/version.h"
#include "mainwindow/fm_main_fixture.h"

#include <QAction>
#include <QEnterEvent>
#include <QTest>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class AboutPanelTest : public MainWindowTest {
  protected:
    void ShowAbout() {
        Start();
        Control<QAction>(u"HELP:ABOUT"_s).trigger();
    }
    QString Text(const QString& name) { return Control<QLabel>(name).text(); }
    void MouseOver(const QString& name) {
        const QPointF middle = Control<QLabel>(name).rect().center();
        QEnterEvent event(middle, middle, middle);
        QCoreApplication::sendEvent(&Control<QLabel>(name), &event);
    }
    static QString Version(const QString& pattern) {
        return pattern.arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision);
    }
};

TEST_F(AboutPanelTest, TellsNameAndVersion) {
    ShowAbout();
    EXPECT_EQ(Title(), u"O programu"_s);
    EXPECT_EQ(Text(u"lbl_About"_s), u"Lorvo"_s);
    EXPECT_EQ(Text(u"lbl_Ver"_s), Version(u"Verze %1.%2 build %3"_s));
    EXPECT_TRUE(Control<QWidget>(u"picAbout"_s).isVisible());
    EXPECT_TRUE(Control<QLabel>(u"picMode"_s).pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(AboutPanelTest, ThePictureStandsInTheMiddle) {
    ShowAbout();
    const auto& panel = Control<QWidget>(u"picAbout"_s);
    const auto& picture = Control<QLabel>(u"imgBkg"_s);
    window_->resize(window_->size() + QSize(80, 60));
    QCoreApplication::processEvents();
    EXPECT_EQ(picture.x(), (panel.width() - picture.width()) / 2);
    EXPECT_EQ(picture.y(), (panel.height() - picture.height()) / 2);
}

TEST_F(AboutPanelTest, TheAuthorsNameShowsTheAddressInTheStatusBar) {
    AddSmallShow();
    Start();
    window_->ShowNodeInfo(u"R10"_s);
    Control<QAction>(u"HELP:ABOUT"_s).trigger();
    MouseOver(u"lbl_Mailto"_s);
    EXPECT_EQ(Status(1), u"lorvo@hollowpeak.example"_s);
    EXPECT_EQ(Status(2), QString());
    EXPECT_TRUE(Control<QLabel>(u"sbMain(1)"_s).isVisible());
    EXPECT_TRUE(Control<QLabel>(u"lbl_Mailto"_s).font().underline());
    MouseOver(u"Label9"_s);
    for (int panel = 1; panel <= 4; ++panel) {
        EXPECT_EQ(Status(panel), QString());
        const auto& picture = Control<QLabel>(u"sbMain(%1).picture"_s.arg(panel));
        EXPECT_TRUE(picture.pixmap(Qt::ReturnByValue).isNull());
    }
}

TEST_F(AboutPanelTest, AClickWritesToTheAuthor) {
    ShowAbout();
    QTest::mouseClick(&Control<QLabel>(u"lbl_Mailto"_s), Qt::LeftButton);
    ASSERT_EQ(platform_.openedAddresses.size(), 1);
    EXPECT_EQ(platform_.openedAddresses.constFirst(),
              Version(u"mailto:lorvo@hollowpeak.example?subject=Lorvo_%1.%2.%3"_s));
}

TEST_F(AboutPanelTest, TheNextNodeTakesThePanelsPlace) {
    AddSmallShow();
    ShowAbout();
    window_->ShowNodeInfo(u"R10"_s);
    EXPECT_FALSE(Control<QWidget>(u"picAbout"_s).isVisible());
}

} // namespace
} // namespace lorvo
