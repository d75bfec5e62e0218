#include "reports/frmPrehledPlemen.h"
#include "reports/paper_fixture.h"
#include "support/window_walk.h"

#include <QDir>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class BreedOverview : public PaperFixture {
  protected:
    BreedOverview() { window.show(); }

    frmPrehledPlemen window{nullptr};
};

} // namespace

TEST_F(BreedOverview, IsTypedAsItWasReadByEye) {
    Click(window, "cmdOK");
    ExpectGolden(u"breed_overview.txt"_s, Operations().toUtf8() + '\n');
    EXPECT_EQ(platform.shownDocuments, 1);
    EXPECT_EQ(platform.waitCursorDepth, 0);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(BreedOverview, CountsBreedsInUseAndTheirDogs) {
    Control<QLineEdit>(window, "txtTitle").setText(u"Klubová výstava"_s);
    Click(window, "cmdOK");
    EXPECT_TRUE(Text().startsWith(u"Klubová výstava¶\n¶\nPřehled plemen :¶\n¶\nFCI 1¶\n"
                                  "\\tPočet plemen:\\t\\t1¶\n\\tPočet psů:\\t\\t0¶\n¶\nFCI 2¶\n"
                                  "\\tPočet plemen:\\t\\t1¶\n\\tPočet psů:\\t\\t3¶\n¶\nFCI 3¶\n"
                                  "\\tPočet plemen:\\t\\t0¶\n\\tPočet psů:\\t\\t0¶\n"_s))
        << Text().toStdString();
    EXPECT_TRUE(
        Text().endsWith(u"FCI nezařazeno¶\n\\tPočet plemen:\\t\\t1¶\n\\tPočet psů:\\t\\t0¶\n"
                        "¶\nCelkem psů:\\t\\t6¶\nCelkem plemen:\\t\\t4"_s))
        << Text().toStdString();
}

TEST_F(BreedOverview, ADocumentThatNothingOpensIsNamedAndTheWindowCloses) {
    platform.filesOpen = false;
    platform.ExpectMessage(
        u"Dokument je uložen v souboru „%1“, ale na tomto počítači jej "
        u"nemá co otevřít. Otevřete jej na kterémkoli počítači s textovým procesorem (Microsoft "
        u"Word, LibreOffice Writer)."_s.arg(
            QDir::toNativeSeparators(platform.ProgramFolder() + u"/Tisky/Přehled plemen.docx"_s)),
        MessageAnswer::Ok, MessageIcon::Information, MessageButtons::Ok, u"Přehled plemen"_s);
    Click(window, "cmdOK");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(BreedOverview, TheTotalsAreTheSumsOfTheGroups) {
    show.Execute("UPDATE Plemena SET Pouzivat = -1; UPDATE Plemena SET FCI = 0 WHERE ID = 12");
    Click(window, "cmdOK");
    int breeds = 0;
    int dogs = 0;
    for (const QString& line : Text().split(u'\n')) {
        const int number = line.section(u"\\t\\t"_s, 1).remove(u'¶').toInt();
        if (line.startsWith(u"\\tPočet plemen:"_s))
            breeds += number;
        if (line.startsWith(u"\\tPočet psů:"_s))
            dogs += number;
    }
    EXPECT_EQ(dogs, 7);
    EXPECT_EQ(breeds, 4) << "a breed in no group from 1 to 11 falls out";
    EXPECT_TRUE(Text().endsWith(u"Celkem psů:\\t\\t7¶\nCelkem plemen:\\t\\t4"_s));
}

TEST_F(BreedOverview, ACountBeyondSixteenBitsIsAMessage) {
    show.Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32762) "
                 "INSERT INTO Psi (Jmeno, PlemenoID) SELECT 'x', 14 FROM n");
    platform.ExpectMessage(u"Přehled plemen umí počítat jen do 32767."_s, MessageAnswer::Ok,
                           MessageIcon::Stop, MessageButtons::Ok, u"Přehled plemen"_s);
    Click(window, "cmdOK");
    EXPECT_EQ(platform.shownDocuments, 0);
    EXPECT_EQ(platform.waitCursorDepth, 0);
    EXPECT_TRUE(window.isVisible());
    show.Execute("DELETE FROM Psi WHERE ID = 1");
    Click(window, "cmdOK");
    EXPECT_TRUE(Text().contains(u"Celkem psů:\\t\\t32767¶"_s));
}

TEST_F(BreedOverview, ItsWindowIsLaidOutForReadingAndForTheKeyboard) {
    EXPECT_EQ(window.windowTitle(), u"Přehled plemen");
    EXPECT_EQ(Control<QLineEdit>(window, "txtTitle").text(),
              u"Krajská výstava psů společenských plemen v ...");
    EXPECT_EQ(Control<QPushButton>(window, "cmdCancel").text(), u"Storno");
    WalkWindow(window);
    Click(window, "cmdCancel");
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(platform.wordOperations.isEmpty());
}

} // namespace lorvo::test
