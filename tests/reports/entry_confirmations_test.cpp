#include "reports/frmTiskPozvanek.h"
#include "reports/paper_fixture.h"

#include <QLabel>
#include <QPlainTextEdit>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class EntryConfirmations : public PaperFixture {
  protected:
    void WritePattern(const QByteArray& body) {
        WriteTemplate(u"Pozvánky.html"_s, "__top____top_end____body__" + body +
                                              "|__body_end____bottom__end__bottom_end__");
    }
    QByteArray Sheets() {
        Start(window, true);
        return File(u"HTMLVýstup.html"_s);
    }
    /// What a window of its own types.
    QString Document() {
        frmTiskPozvanek other(nullptr);
        Start(other, false);
        return Text();
    }

    frmTiskPozvanek window{nullptr};
};

} // namespace

TEST_F(EntryConfirmations, HasABoxForEachTextWithItsDefault) {
    const QString labels[] = {u"Nadpis"_s,     u"Úvod"_s,       u"Odstavec 1"_s, u"Odstavec 2"_s,
                              u"Odstavec 3"_s, u"Odstavec 4"_s, u"Odstavec 5"_s, u"Odstavec 6"_s,
                              u"Odstavec 7"_s, u"Jméno"_s,      u"Titul"_s};
    for (int i = 0; i < 11; ++i) {
        const QWidget& box = Control<QWidget>(window, qPrintable(u"txtLine(%1)"_s.arg(i)));
        const auto found = window.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(found.begin(), found.end(), [&](const QLabel* label) {
            return label->buddy() == &box && label->text() == labels[i];
        })) << i;
    }
    EXPECT_EQ(Control<QLineEdit>(window, "txtLine(0)").text(),
              u"VSTUPNÍ LIST - potvrzení přihlášky");
    EXPECT_EQ(Control<QLineEdit>(window, "txtLine(3)").text(),
              u"Přejímka psů probíhá od 7,00 do 9,00 hodin");
    EXPECT_TRUE(Control<QPlainTextEdit>(window, "txtLine(5)")
                    .toPlainText()
                    .endsWith(u"bude vyhodnocen Vítěz Zlína 2005."));
}

// kept: five-typed-confirmations
TEST_F(EntryConfirmations, SevenDogsAreSevenPagesOrFiveTypedSheets) {
    WritePattern("_katcislo_");
    EXPECT_EQ(Sheets(), "|1|3|4|5|7|12|end");
    EXPECT_EQ(Document().count(u"--- page"_s), 5);
}

TEST_F(EntryConfirmations, WhatIsTypedIntoTheBoxesGoesToTheDocumentAlone) {
    WritePattern("_uvod_ _jmeno_");
    Control<QLineEdit>(window, "txtLine(0)").setText(u"POZVÁNKA"_s);
    Control<QPlainTextEdit>(window, "txtLine(2)").setPlainText(u"první\ndruhý"_s);
    EXPECT_FALSE(Sheets().contains("POZV"));
    Click(window, "cmdOK");
    Start(window, false);
    EXPECT_EQ(Text().count(u"POZVÁNKA¶"_s), 5);
    EXPECT_EQ(Text().count(u"první\\ndruhý¶"_s), 5);
}

TEST_F(EntryConfirmations, ADogWithoutANumberHasAnEmptyOne) {
    EXPECT_TRUE(Document().contains(u"Katalogové číslo:\\t¶\nJméno psa:\\tČert ¶\n"_s))
        << Text().toStdString();
}

TEST_F(EntryConfirmations, ADogWithoutAnOwnerHasThreeBlankLinesOrTheRawPlaceholders) {
    WritePattern("_majjmeno_,_majulice_,_majmesto_,_majpsc_,_adresa_");
    EXPECT_TRUE(Sheets().startsWith("_majjmeno_,_majulice_,_majmesto_,_majpsc_,|"));
    EXPECT_TRUE(Document().startsWith(u"¶\n¶\n¶\n ¶\n ¶\n ¶\n"_s));
}

TEST_F(EntryConfirmations, PostCodesAreGrouped) {
    WritePattern("_majpsc_");
    EXPECT_EQ(Sheets(), "_majpsc_|012 34|012 34|760 01|012 34|760 01|760 01|end");
    EXPECT_TRUE(Document().contains(u"Krátká 1¶\n012 34 Ústí nad Labem¶"_s));
}

TEST_F(EntryConfirmations, AValueThatSpellsALaterPlaceholderIsReplaced) {
    WritePattern("_jmenopsa_");
    show.Execute("DELETE FROM Psi WHERE ID <> 1; UPDATE Psi SET Jmeno = '_trida_';");
    EXPECT_EQ(Sheets(), "dorostu z Dvora|end");
}

TEST_F(EntryConfirmations, AStopLeavesTheSheetsDoneSoFarOnBothRoutes) {
    WritePattern("_katcislo_");
    StopAt(window, u"57%"_s);
    EXPECT_EQ(Sheets(), "|1|3|end");
    EXPECT_FALSE(window.isVisible());
    frmTiskPozvanek other(nullptr);
    StopAt(other, u"60%"_s);
    Start(other, false);
    EXPECT_EQ(Text().count(u"--- page"_s), 2);
    EXPECT_EQ(platform.shownDocuments, 1);
    EXPECT_FALSE(other.isVisible());
}

TEST_F(EntryConfirmations, TheCloseButtonIsDisabledForTheDocumentAlone) {
    WritePattern("_katcislo_");
    std::vector<bool> enabled;
    platform.onProcessEvents = [&] {
        enabled.push_back(Control<QPushButton>(window, "cmdCancel").isEnabled());
    };
    Sheets();
    EXPECT_EQ(enabled, std::vector<bool>(8, true));
    enabled.clear();
    Click(window, "cmdOK");
    Start(window, false);
    EXPECT_EQ(enabled, std::vector<bool>(5, false));
}

TEST_F(EntryConfirmations, AClassOutsideTheTableEndsTheRunWithAMessage) {
    WritePattern("_trida_");
    for (const int trida : {0, 21}) {
        show.Execute("UPDATE Psi SET Trida = " + std::to_string(trida) + " WHERE ID = 1");
        frmTiskPozvanek other(nullptr);
        platform.ExpectMessage(u"Pes „Rex“ má třídu %1, ale třídy jsou jen 1 až 20."_s.arg(trida),
                               MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
                               u"Export pozvánek"_s);
        Start(other, true);
        EXPECT_TRUE(other.isVisible());
        EXPECT_EQ(File(u"HTMLVýstup.html"_s), "no file");
    }
}

} // namespace lorvo::test
