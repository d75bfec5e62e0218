#include "platform/values/cp1250.h"
#include "reports/frmTiskSeznamVystavovatelu.h"
#include "reports/paper_fixture.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class ExhibitorList : public PaperFixture {
  protected:
    ExhibitorList() {
        WriteTemplate(u"Seznam vystavovatelů.html"_s,
                      "__top____top_end____body__<_majjmeno_,_majulice_,_majmesto_,_majpsc_:"
                      "_cislapsu_>__body_end____bottom____bottom_end__");
    }
    QString Page() {
        Start(window, true);
        return FromCp1250(Output());
    }

    frmTiskSeznamVystavovatelu window{nullptr};
};

} // namespace

// kept: raw-numbers-placeholder
TEST_F(ExhibitorList, AnOwnerWithoutDogsHasARowOnBothRoutesAndTheRawPlaceholderOnOne) {
    EXPECT_EQ(Page(),
              u"<Bedřich,,Brno,602 00:_cislapsu_>"
              "<Eva,Krátká 1,Ústí nad Labem,012 34:1,3,5><Jan,Dlouhá 5,Zlín,760 01:4,7,12>");
    frmTiskSeznamVystavovatelu other(nullptr);
    Start(other, false);
    EXPECT_TRUE(
        Text().endsWith(u"Bedřich  Brno 602 00¶\nEva Krátká 1 Ústí nad Labem 012 34\\t1,3,5¶\n"
                        "Jan Dlouhá 5 Zlín 760 01\\t4,7,12¶\n"_s))
        << Text().toStdString();
}

TEST_F(ExhibitorList, DogsWithoutNumbersAreLoneCommasMinusTheLast) {
    show.Execute("UPDATE Psi SET Cislo = NULL; UPDATE Psi SET MajitelID = 7 WHERE ID = 3");
    EXPECT_EQ(Page(), u"<Bedřich,,Brno,602 00:_cislapsu_>"
                      "<Eva,Krátká 1,Ústí nad Labem,012 34:,,><Jan,Dlouhá 5,Zlín,760 01:,,>");
}

TEST_F(ExhibitorList, TheBoxesChangeNothing) {
    for (int i = 0; i < 3; ++i)
        Control<QLineEdit>(window, qPrintable(u"txtLine(%1)"_s.arg(i))).setText(u"nothing"_s);
    Start(window, false);
    EXPECT_FALSE(Text().contains(u"nothing"_s));
    Click(window, "cmdOK");
    EXPECT_FALSE(Page().contains(u"nothing"_s));
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ExhibitorList, TheDocumentHasNoProgressFigure) {
    platform.onProcessEvents = [&] {
        FAIL() << window.windowTitle().toStdString();
    };
    Start(window, false);
    EXPECT_EQ(platform.shownDocuments, 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ExhibitorList, AStopLeavesTheRowsDoneSoFar) {
    StopAt(window, u"66%"_s);
    EXPECT_EQ(Page(), u"<Bedřich,,Brno,602 00:_cislapsu_>");
    EXPECT_EQ(platform.openedFiles.size(), 1);
}

} // namespace lorvo::test
