#include "reports/frmTiskKatalog.h"

#include "store/psi.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"
#include "support/window_walk.h"

#include <QTest>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class CatalogueWindow : public testing::Test {
  protected:
    CatalogueWindow() {
        show.Execute(
            "INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'Kruh 1');"
            "INSERT INTO Plemena (ID, Nazev, Pouzivat, ID_Kruhu) VALUES (10, 'Boxer', -1, 1);"
            "INSERT INTO Psi (ID, Jmeno, PlemenoID, PohlaviPes, Trida) VALUES "
            "(1, 'Rex', 10, -1, 1)");
        window.show();
    }

    template<typename T> T& Control(const char* name) {
        return *window.findChild<T*>(QString::fromLatin1(name));
    }
    void Click(const char* button) {
        QTest::mouseClick(&Control<QPushButton>(button), Qt::LeftButton);
    }
    bool Typed(const QString& operation) const {
        return platform.wordOperations.contains(operation);
    }

    RecordingPlatform platform;
    TempDatabase show;
    frmTiskKatalog window{nullptr};
};

} // namespace

TEST_F(CatalogueWindow, OpensWithTheDocumentRouteAlone) {
    EXPECT_EQ(window.objectName(), u"frmTiskKatalog");
    EXPECT_EQ(window.windowTitle(), u"Tisk katalogu");
    EXPECT_EQ(Control<QPushButton>("cmdOK").text(), u"Tisk");
    EXPECT_EQ(Control<QPushButton>("cmdCancel").text(), u"Storno");
    EXPECT_EQ(Control<QCheckBox>("chkEX").text(), u"Generovat povýstavní katalog");
    EXPECT_FALSE(Control<QCheckBox>("chkEX").isChecked());
    auto& html = Control<QCheckBox>("chkHTML");
    EXPECT_FALSE(html.isEnabled());
    QTest::mouseClick(&html, Qt::LeftButton);
    QTest::keyClick(&html, Qt::Key_Space);
    EXPECT_FALSE(html.isChecked());
}

TEST_F(CatalogueWindow, IsLaidOutForReadingAndForTheKeyboard) {
    WalkWindow(window);
    EXPECT_TRUE(Control<QPushButton>("cmdOK").isDefault());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(CatalogueWindow, PutsTheCatalogueOutAndStaysOpen) {
    Click("cmdOK");
    EXPECT_TRUE(Typed(u"TypeText \"Rex \""_s)) << platform.wordOperations.join(u'\n').toStdString();
    EXPECT_FALSE(Typed(u"TypeText \"Ocenění :\\t\""_s));
    EXPECT_EQ(platform.documentTitles, QStringList(u"Katalog"_s));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), u"Tisk katalogu");
    EXPECT_EQ(Control<QPushButton>("cmdOK").text(), u"Start");
}

TEST_F(CatalogueWindow, StartsAgainByTwoClicks) {
    Click("cmdOK");
    Click("cmdOK");
    EXPECT_EQ(platform.shownDocuments, 1);
    Click("cmdOK");
    EXPECT_EQ(platform.shownDocuments, 2);
}

TEST_F(CatalogueWindow, TheCatalogueAfterTheShowHasAwards) {
    QTest::keyClick(&Control<QCheckBox>("chkEX"), Qt::Key_Space);
    Click("cmdOK");
    EXPECT_TRUE(Typed(u"TypeText \"Ocenění :\\t\""_s));
}

TEST_F(CatalogueWindow, AClassOutsideTheTableIsAMessageAndNoDocument) {
    show.Execute("UPDATE Psi SET Trida = 21");
    platform.ExpectMessage(u"Pes „Rex“ má třídu 21, ale třídy jsou jen 1 až 20."_s,
                           MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
                           u"Tisk katalogu"_s);
    Click("cmdOK");
    EXPECT_EQ(platform.shownDocuments, 0);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(DogByID(1)->Trida, 21);
}

TEST_F(CatalogueWindow, TheCloseButtonClosesIt) {
    Click("cmdCancel");
    EXPECT_FALSE(window.isVisible());
}

} // namespace lorvo::test
