// Every window, opened as a command opens it, on a screen of the size, scale, palette and text size
// that the environment asks for: nothing cut, nothing off the screen, everything reachable by keys.
// LORVO_WALK names the kind of screen, LORVO_PICTURES the folder that takes a picture of each.
#include "mainwindow/shell_fixture.h"
#include "support/modal_driver.h"
#include "support/window_walk.h"

#include <QDir>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace lorvo {
namespace {

QString Kind() {
    return qEnvironmentVariable("LORVO_WALK");
}

QPalette DarkPalette() {
    QPalette dark(QColor(53, 53, 53), QColor(35, 35, 35));
    dark.setColor(QPalette::Base, QColor(42, 42, 42));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::ButtonText, Qt::white);
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

class MainWindowWalk : public Shell {
  protected:
    void SetUp() override {
        paletteBefore_ = QApplication::palette();
        fontBefore_ = QApplication::font();
        if (Kind().contains(u"dark"))
            QApplication::setPalette(DarkPalette());
        if (Kind().contains(u"large")) {
            QFont large = fontBefore_;
            large.setPointSizeF(large.pointSizeF() * 1.37);
            QApplication::setFont(large);
        }
        database_.Execute("INSERT INTO Ostatni (DatumVystavy) VALUES ('2024-06-15')");
        database_.Execute(
            "INSERT INTO Vystavy (ID, Nazev, Hlavni) VALUES (1, 'Hlavní výstava', -1)");
        database_.Execute("INSERT INTO Meny (ID, Nazev, Zkratka, Kurs, Hlavni) VALUES "
                          "(1, 'Koruna česká', 'Kč', 10000, -1)");
        database_.Execute("INSERT INTO Majitele (ID, Jmeno, Prijmeni) VALUES (1, 'Eva', 'Nová')");
        AddSmallShow();
        database_.Execute("UPDATE Psi SET MajitelID = 1");
        Start();
        window_->SelectNode(u"P100"_qs);
        window_->ShowNodeInfo(u"P100"_qs);
    }
    void TearDown() override {
        Shell::TearDown();
        QApplication::setPalette(paletteBefore_);
        QApplication::setFont(fontBefore_);
    }

    static void TakePicture(QWidget& window) {
        const QString folder = qEnvironmentVariable("LORVO_PICTURES");
        if (!folder.isEmpty() && QDir().mkpath(folder + u'/' + Kind()))
            EXPECT_TRUE(window.grab().save(folder + u'/' + Kind() + u'/' + window.objectName() +
                                           u".png"_qs));
    }
    static void ExpectOnTheScreen(const QWidget& window) {
        const QRect space = window.screen()->availableGeometry();
        EXPECT_TRUE(space.contains(window.geometry()))
            << window.objectName().toStdString() << ": " << window.width() << " x "
            << window.height() << " on " << space.width() << " x " << space.height();
    }

  private:
    QPalette paletteBefore_;
    QFont fontBefore_;
};

class WindowWalk : public MainWindowWalk, public ::testing::WithParamInterface<const char*> {};

TEST_P(WindowWalk, IsInOrderOnThisScreen) {
    const QString name = QString::fromLatin1(GetParam());
    Module().CurrentDogID = 100;
    Module().CurrentOwner = 1;
    test::WhileOpen([&name] { Open(name); },
                    [](QWidget& window) {
                        ExpectOnTheScreen(window);
                        test::WalkWindow(window);
                        TakePicture(window);
                    });
    EXPECT_FALSE(IsModalOpen());
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowWalk,
                         ::testing::Values("fm_Colors", "fmDiplom", "fm_Dog", "fm_DogsList",
                                           "fm_Plemena", "fm_Settings", "fm_Souteze", "frmEditMan",
                                           "frmFind", "frmJmenoRozhodciho", "frmOceneni",
                                           "frmParents", "frmPlatba", "frmPrehledPlateb",
                                           "frmPrehledPlemen", "frmTiskKatalog", "frmTiskPlateb",
                                           "frmTiskPosudku", "frmTiskPozvanek", "frmTiskSeznamuPsu",
                                           "frmTiskSeznamVystavovatelu", "frmUhrady",
                                           "frmVystavovatele", "frmVystavy"));

TEST_F(MainWindowWalk, IsInOrderOnThisScreen) {
    ExpectOnTheScreen(*window_);
    test::WalkWindow(*window_);
    TakePicture(*window_);
}

} // namespace
} // namespace lorvo
