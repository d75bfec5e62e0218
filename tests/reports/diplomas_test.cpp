#include "platform/values/cp1250.h"
#include "reports/fmDiplom.h"
#include "reports/paper_fixture.h"

#include <QLabel>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class Diplomas : public PaperFixture {
  protected:
    Diplomas() {
        WriteTemplate(u"Diplomy.html"_s,
                      "__top____top_end____body__<_katcislo_,_jmenopsa_,_majjmeno_,_majpsc_,"
                      "_adresa__uvod__odstavec1_,_odstavec2_>__body_end____bottom____bottom_end__");
    }

    fmDiplom window{nullptr};
};

} // namespace

TEST_F(Diplomas, TellsWhatItMakes) {
    QStringList texts;
    for (const QLabel* label : window.findChildren<QLabel*>())
        texts << label->text();
    EXPECT_EQ(texts, QStringList({u"Vygeneruje seznam všech psů. Sestava je určena pro tisk na "
                                  "předtištěné diplomy."_s,
                                  u"(žádné volby)"_s}));
}

TEST_F(Diplomas, TheTemplateGoesByNumberAndTheDocumentByName) {
    Start(window, true);
    EXPECT_TRUE(Output().startsWith(
        ToCp1250(u"<,Čert ,_majjmeno_,_majpsc_,,_odstavec2_><1,Dora z Hor,Eva,012 34,,"_s)))
        << Output().constData();
    fmDiplom other(nullptr);
    Start(other, false);
    QStringList names;
    for (const QString& page : Text().split(u"--- page\n"_s, Qt::SkipEmptyParts))
        names << page.section(u"\\r\\n"_s, 24, 24);
    EXPECT_EQ(names,
              QStringList({u"pes Áron z Lesa"_s, u"fena Aša od Řeky"_s,
                           u"pes Brok & syn z \\\"Údolí\\\" <x>"_s, u"pes Čert "_s,
                           u"fena Dora z Hor"_s, u"pes Rex z Dvora"_s, u"fena Zita z Lesa"_s}));
}

TEST_F(Diplomas, ADogWithoutAnOwnerHasNoOwnerLine) {
    show.Execute("DELETE FROM Psi WHERE ID <> 3");
    Start(window, false);
    EXPECT_TRUE(Text().endsWith(
        u"pes Čert \\r\\n\\r\\n\\r\\nTřída štěňat od 3 do 6 měsíců\\r\\n--- page\n"_s))
        << Text().toStdString();
}

TEST_F(Diplomas, EveryNameIsBold) {
    Start(window, false);
    bool bold = false;
    int names = 0;
    for (const QString& operation : platform.wordOperations) {
        if (operation.startsWith(u"SetBold "_s))
            bold = operation.endsWith(u"Toggle"_s) ? !bold : operation.endsWith(u"On"_s);
        if (operation == u"SetFontSize 16") {
            EXPECT_TRUE(bold);
            ++names;
        }
    }
    EXPECT_EQ(names, 7);
}

// kept: diplomas-named-catalogue
TEST_F(Diplomas, ShowsItsProgressUnderTheNameOfAnotherPaper) {
    QStringList captions;
    platform.onProcessEvents = [&] {
        captions << window.windowTitle();
    };
    Start(window, false);
    EXPECT_EQ(captions.first(), u"Export katalogu - Generuji výpis - 14%");
    EXPECT_EQ(captions.last(), u"Export katalogu - Generuji výpis - 100%");
    EXPECT_EQ(window.windowTitle(), u"Export katalogu");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Diplomas, AStopLeavesTheDiplomasDoneSoFarOnBothRoutes) {
    StopAt(window, u"57%"_s);
    Start(window, true);
    EXPECT_EQ(Output().count('<'), 3);
    EXPECT_EQ(platform.openedFiles.size(), 1);
    fmDiplom other(nullptr);
    StopAt(other, u"57%"_s);
    Start(other, false);
    EXPECT_EQ(Text().count(u"--- page"_s), 3);
}

} // namespace lorvo::test
