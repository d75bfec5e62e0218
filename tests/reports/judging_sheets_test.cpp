#include "platform/values/cp1250.h"
#include "reports/frmTiskPosudku.h"
#include "reports/paper_fixture.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class JudgingSheets : public PaperFixture {
  protected:
    JudgingSheets() {
        WriteTemplate(
            u"Posudkové listy.html"_s,
            "__top____top_end____body__<_nadpis_,_katcislo_,_jmenopsa_,_pohlavi_,_PK_,"
            "_trida_,_dnarozeni_,_plemeno_,_majitel_>__body_end____bottom____bottom_end__");
    }
    QByteArray Sheets() {
        Start(window, true);
        return Output();
    }
    QString Document() {
        Start(window, false);
        return Text();
    }
    void SetBox(int index, const QString& text) {
        Control<QLineEdit>(window, qPrintable(u"txtLine(%1)"_s.arg(index))).setText(text);
    }

    frmTiskPosudku window{nullptr};
};

} // namespace

TEST_F(JudgingSheets, TheTitleBoxChangesBothRoutesAndTheOthersNone) {
    EXPECT_EQ(Control<QLineEdit>(window, "txtLine(0)").text(),
              u"Krajská výstava psů společenských plemen Zlín 14. května 2005");
    SetBox(0, u"Klubova"_s);
    for (int i = 1; i < 11; ++i)
        SetBox(i, u"nothing"_s);
    const QString typed = Document();
    EXPECT_EQ(typed.count(u"Klubova¶"_s), 7);
    EXPECT_FALSE(typed.contains(u"nothing"_s));
    Click(window, "cmdOK");
    EXPECT_EQ(Sheets().count("<Klubova,"), 7);
    EXPECT_FALSE(Output().contains("nothing"));
}

TEST_F(JudgingSheets, ADogWithoutANumberGetsASheet) {
    SetBox(0, u"V"_s);
    EXPECT_TRUE(Sheets().startsWith(ToCp1250(u"<V,,Čert,Pes,,štěňat od 3 do 6 měsíců,,Boxer,>"_s)))
        << Output().constData();
}

TEST_F(JudgingSheets, TheTemplateHasTheDogsNameAloneAndTheDocumentTheKennelToo) {
    EXPECT_TRUE(Sheets().contains(",Rex,Pes,"));
    show.Execute("DELETE FROM Psi WHERE ID <> 1");
    frmTiskPosudku other(nullptr);
    Start(other, false);
    EXPECT_TRUE(Text().contains(u"Jméno psa a chov. stanice:\\tRex z Dvora¶"_s));
}

TEST_F(JudgingSheets, ABreedWithoutACzechNameIsEmpty) {
    EXPECT_TRUE(Sheets().contains(ToCp1250(u",Áron,Pes,CLP/9,"_s)));
    EXPECT_TRUE(Output().contains(",1.6.2004,,Jan>"));
}

TEST_F(JudgingSheets, AStopLeavesThePagesDoneSoFarButFinishesTheTypedSheet) {
    StopAt(window, u"42%"_s);
    EXPECT_EQ(Sheets().count('<'), 2);
    frmTiskPosudku other(nullptr);
    StopAt(other, u"42%"_s);
    Start(other, false);
    EXPECT_EQ(Text().count(u"--- page"_s), 3);
    EXPECT_TRUE(Text().endsWith(u"podpis rozhodčího--- page\n"_s));
    EXPECT_EQ(platform.shownDocuments, 1);
}

TEST_F(JudgingSheets, AClassOutsideTheTableEndsTheRunWithAMessage) {
    show.Execute("UPDATE Psi SET Trida = 21 WHERE ID = 1");
    platform.ExpectMessage(u"Pes „Rex“ má třídu 21, ale třídy jsou jen 1 až 20."_s);
    Start(window, false);
    EXPECT_EQ(platform.shownDocuments, 0);
    EXPECT_TRUE(window.isVisible());
}

} // namespace lorvo::test
