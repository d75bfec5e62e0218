#include "platform/values/cp1250.h"
#include "reports/frmTiskSeznamuPsu.h"
#include "reports/paper_fixture.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kTemplate = "__top__T__top_end____loop1__[_skupina_ __body__(_radek_)"
                                  "__body_end__]__loop1_end____bottom__B__bottom_end__";

class DogLists : public PaperFixture {
  protected:
    DogLists() { WriteTemplate(u"Seznam psů.html"_s, kTemplate); }
    void Choose(int option) { Click(window, qPrintable(u"optSortKey(%1)"_s.arg(option))); }
    QString Document() {
        Start(window, false);
        return Text();
    }
    /// The template route's output, in Czech.
    QString Page() {
        Start(window, true);
        return FromCp1250(Output());
    }

    frmTiskSeznamuPsu window{nullptr};
};

} // namespace

TEST_F(DogLists, OffersFourGroupings) {
    const QString captions[] = {u"Plemene"_s, u"Pohlaví"_s, u"Majitele"_s, u"Třídy"_s};
    window.show();
    EXPECT_EQ(Control<QGroupBox>(window, "").title(), u"Seskupit podle ");
    for (int i = 0; i < 4; ++i) {
        auto& option = Control<QRadioButton>(window, qPrintable(u"optSortKey(%1)"_s.arg(i)));
        EXPECT_EQ(option.text(), captions[i]);
        EXPECT_EQ(option.isChecked(), i == 0);
    }
}

TEST_F(DogLists, ByBreedNamesTheOwnersAndEveryBreedInUse) {
    EXPECT_EQ(
        Document(),
        u"Pug¶\n"
        "Áron z Lesa - třída štěňat od 3 do 6 měsíců - datum narození 1.6.2004 - majitel Jan¶\n"
        "Brok & syn z \\\"Údolí\\\" <x> - třída dorostu - datum narození 31.1.2002 - majitel Jan¶\n"
        "Zita z Lesa - třída mladých - datum narození 28.2.2003 - majitel Eva¶\n"
        "Boxer¶\n"
        "Aša od Řeky - třída mezitřída - datum narození 2.11.2004 - majitel Eva¶\n"
        "Čert  - třída štěňat od 3 do 6 měsíců - datum narození  - majitel ¶\n"
        "Rex z Dvora - třída dorostu - datum narození 14.5.2003 - majitel Jan¶\n"
        "Čuvač¶\n"
        "Kříženec¶\n"_s);
}

TEST_F(DogLists, BySexHasTwoGroupsAndOneGapAtTheEnd) {
    Choose(1);
    EXPECT_TRUE(Document().startsWith(
        u"Pes¶\nÁron z Lesa - třída štěňat od 3 do 6 měsíců - datum narození 1.6.2004 "
        "- číslo PK CLP/9¶\n"_s))
        << Text().toStdString();
    EXPECT_EQ(Text().count(u"\nFena¶\nAša od Řeky"_s), 1);
    EXPECT_EQ(platform.wordOperations.count(u"SetSelectionText \"\\r\\n\""_s), 2);
    EXPECT_EQ(platform.wordOperations.mid(platform.wordOperations.size() - 5).join(u'|'),
              u"SetSelectionText \"\\r\\n\"|SetSelectionText \"\\r\\n\"|EndKeyStory|HomeKeyStory|"
              "Show");
}

TEST_F(DogLists, ByOwnerHasAHeadingForOneWithoutDogsToo) {
    Choose(2);
    EXPECT_TRUE(Document().startsWith(u"Bedřich¶\nEva¶\nAša od Řeky"_s)) << Text().toStdString();
    EXPECT_EQ(platform.wordOperations.count(u"EndKeyStory"_s), 3);
}

// kept: males-alone-by-class
TEST_F(DogLists, ByClassHasMalesAlone) {
    Choose(3);
    const QString typed = Document();
    EXPECT_TRUE(typed.startsWith(u"štěňat od 3 do 6 měsíců¶\nÁron z Lesa"_s))
        << typed.toStdString();
    EXPECT_TRUE(typed.contains(u"¶\ndorostu¶\nBrok"_s));
    for (const QString& female : {u"Aša"_s, u"Dora"_s, u"Zita"_s})
        EXPECT_FALSE(typed.contains(female)) << female.toStdString();
}

TEST_F(DogLists, ThePercentageCountsGroupsOrDogs) {
    const QStringList figures[] = {
        {u"25%"_s, u"50%"_s, u"75%"_s, u"100%"_s},
        {u"14%"_s, u"28%"_s, u"42%"_s, u"57%"_s, u"71%"_s, u"85%"_s, u"100%"_s}};
    for (int option = 0; option < 2; ++option) {
        frmTiskSeznamuPsu other(nullptr);
        other.show();
        Click(other, qPrintable(u"optSortKey(%1)"_s.arg(option)));
        QStringList seen;
        platform.onProcessEvents = [&] {
            const QString start = u"Export seznamu psů - Generuji: "_s;
            EXPECT_TRUE(other.windowTitle().startsWith(start));
            const QString figure = other.windowTitle().mid(start.size());
            if (seen.isEmpty() || seen.last() != figure)
                seen << figure;
        };
        Start(other, false);
        EXPECT_EQ(seen, figures[option]);
    }
}

TEST_F(DogLists, AStopEndsTheDocumentInsideAGroup) {
    StopAt(window, u"50%"_s);
    EXPECT_TRUE(Document().startsWith(u"Pug¶\n"_s));
    EXPECT_FALSE(Text().contains(u"Boxer"_s));
    EXPECT_EQ(platform.shownDocuments, 1);
    EXPECT_FALSE(window.isVisible());
}

// kept: groups-keep-their-markers
TEST_F(DogLists, AGroupsTextKeepsItsMarkersAndItsRowsFollowIt) {
    const QString rest = u" __body__(_radek_)__body_end__]"_s;
    EXPECT_EQ(Page(), u"T["_s + rest + u"(Jan)(Jan)(Eva)[Boxer"_s + rest + u"(Eva)()(Jan)[Čuvač"_s +
                          rest + u"[Kříženec"_s + rest);
    EXPECT_EQ(platform.openedFiles.size(), 1);
}

TEST_F(DogLists, AGroupsRowPatternIsSearchedInItsOwnText) {
    show.Execute("UPDATE Plemena SET Nazev = '__body__<_radek_>__body_end__' WHERE ID = 10;"
                 "UPDATE Plemena SET Pouzivat = 0 WHERE ID <> 10 AND ID <> 11");
    EXPECT_TRUE(Page().contains(u"(Jan)(Jan)(Eva)["_s));
    EXPECT_TRUE(Page().endsWith(u"<Eva><><Jan>"_s));
}

TEST_F(DogLists, TheOtherGroupingsGiveTheTopAlone) {
    for (int option = 1; option < 4; ++option) {
        frmTiskSeznamuPsu other(nullptr);
        other.show();
        Click(other, qPrintable(u"optSortKey(%1)"_s.arg(option)));
        Start(other, true);
        EXPECT_EQ(Output(), "T");
    }
    EXPECT_EQ(platform.openedFiles.size(), 3);
}

TEST_F(DogLists, AStopWritesAndOpensNothing) {
    StopAt(window, u"75%"_s);
    Page();
    EXPECT_EQ(Output(), "no file");
    EXPECT_TRUE(platform.openedFiles.isEmpty());
    EXPECT_EQ(platform.waitCursorDepth, 0);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(DogLists, RunsUnderTheWaitCursorWithTheCloseButtonDisabled) {
    platform.onProcessEvents = [&] {
        EXPECT_EQ(platform.waitCursorDepth, 1);
        EXPECT_FALSE(Control<QPushButton>(window, "cmdCancel").isEnabled());
    };
    Page();
    EXPECT_TRUE(Control<QPushButton>(window, "cmdCancel").isEnabled());
}

TEST_F(DogLists, RowPatternOutsideTheGroupIsAMessageOnceThereIsADog) {
    WriteTemplate(u"Seznam psů.html"_s,
                  "__top__T__top_end____body__r__body_end____loop1__[_skupina_]__loop1_end__"
                  "__bottom____bottom_end__");
    platform.ExpectMessage(
        u"Šablona poškozena: značka __body_end__ stojí před značkou __body__."_s);
    Start(window, true);
    EXPECT_EQ(Output(), "no file");
    show.Execute("DELETE FROM Psi");
    EXPECT_EQ(Page(), u"T[][Boxer][Čuvač][Kříženec]");
}

TEST_F(DogLists, TwoClassesWithoutANameAreTwoGroups) {
    show.Execute("UPDATE Psi SET Trida = 19 WHERE ID = 1; UPDATE Psi SET Trida = 20 WHERE ID = 4");
    Choose(3);
    EXPECT_EQ(Document().count(u"¶\n¶\n"_s), 2);
}

} // namespace lorvo::test
