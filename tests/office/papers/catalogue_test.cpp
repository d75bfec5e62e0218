#include "office/papers/catalogue.h"

#include "app/module_values.h"
#include "platform/values/errors.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class Catalogue : public testing::Test {
  protected:
    Catalogue() {
        show.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'Kruh 1');"
                     "INSERT INTO Plemena (ID, Nazev, NazevOrig, Pouzivat, ID_Kruhu) VALUES "
                     "(10, 'Boxer', 'Deutscher Boxer', -1, 1);"
                     "INSERT INTO Majitele (ID, Jmeno) VALUES (5, 'Jan Novák');");
    }

    /// A dog of the boxers with the owner, but for the given fields.
    void AddDog(int ID, const std::string& name, bool male, int trida,
                const std::string& changes = {}) {
        show.Execute(
            "INSERT INTO Psi (ID, Jmeno, PlemenoID, MajitelID, PohlaviPes, Trida) VALUES (" +
            std::to_string(ID) + ", '" + name + "', 10, 5, " + (male ? "-1" : "0") + ", " +
            std::to_string(trida) + ")");
        if (!changes.empty())
            show.Execute("UPDATE Psi SET " + changes + " WHERE ID = " + std::to_string(ID));
    }

    /// The operations that type the catalogue.
    QStringList Operations(bool withAwards = false) {
        platform.wordOperations.clear();
        TypeCatalogue(*ThePlatform().wordProcessors->Create(u"Katalog"_s), withAwards);
        return platform.wordOperations;
    }
    /// The typed text: "¶" at the end of each paragraph, one a line.
    QString Text(bool withAwards = false) {
        QString text;
        for (const QString& operation : Operations(withAwards)) {
            if (operation == u"TypeParagraph")
                text += u"¶\n"_s;
            else if (operation.startsWith(u"TypeText \""))
                text += operation.mid(10).chopped(1);
        }
        return text;
    }

    RecordingPlatform platform;
    TempDatabase show;
};

const QString kEnd = u"HomeKeyStory|WholeStory|AddTextColumn 332.22 35.43|AddTabStop 28.35|"
                     "AddTabStop 170.08|SetZoomWholePage|SetOrientation Landscape|"
                     "SetLeftMargin 42.52|SetRightMargin 42.52|HomeKeyStory"_s;

} // namespace

TEST_F(Catalogue, OfAnEmptyShowIsAPageInTwoColumns) {
    show.Execute("DELETE FROM Kruhy");
    EXPECT_EQ(Operations().join(u'|'), u"SetOrientation Landscape|"_s + kEnd);
}

TEST_F(Catalogue, TypesADogInItsFormats) {
    AddDog(1, "Rex", true, 2,
           "ChovnaStanice = 'z Dvora', Cislo = 12, DatumNar = '2003-05-14T00:00:00', "
           "PK = 'CMKU/B/1', Otec = 'Áron', Matka = 'Bára', Chovatel = 'Petr Malý'");
    const QString expected =
        u"SetOrientation Landscape|"
        "SetFontName \"Arial\"|SetUnderline On|SetBold On|SetFontSize 12|TypeText \"Kruh 1 \"|"
        "TypeParagraph|TypeParagraph|"
        "SetFontName \"Arial\"|SetUnderline Off|SetBold On|SetFontSize 14|TypeText \"Boxer \"|"
        "TypeParagraph|TypeParagraph|"
        "SetFontName \"Arial\"|SetUnderline Off|SetBold On|SetFontSize 10|"
        "TypeText \"   Pes - \"|TypeText \"třída "_s +
        Module().ClassNames[1] +
        u"\"|TypeParagraph|TypeParagraph|TypeText \"12 \"|SetBold Off|SetFontSize 9|"
        "TypeText \"Rex z Dvora\"|TypeParagraph|"
        "TypeText \"  nar. : 14.5.2003\\t  CMKU/B/1\"|TypeParagraph|"
        "TypeText \"  o. :\\tÁron\\tm. : Bára\"|TypeParagraph|"
        "TypeText \"  ch. : \\tPetr Malý\\tmaj. : \"|TypeText \"Jan Novák\"|"
        "TypeParagraph|TypeParagraph|TypeParagraph|"_s +
        kEnd;
    EXPECT_EQ(Operations().join(u'|'), expected);
}

TEST_F(Catalogue, EmptyFieldsPrintAsEmpty) {
    AddDog(1, "Rex", true, 1);
    const QString text = Text();
    EXPECT_TRUE(
        text.contains(u"\n Rex ¶\n  nar. : \\t  ¶\n  o. :\\t\\tm. : ¶\n  ch. : \\t\\tmaj. : "
                      "Jan Novák¶\n"_s))
        << text.toStdString();
}

TEST_F(Catalogue, RingsAndTheirBreedsInUseRunByName) {
    show.Execute(
        "INSERT INTO Kruhy (ID, Nazev) VALUES (2, 'Áčko'), (3, NULL);"
        "INSERT INTO Plemena (ID, Nazev, NazevOrig, Pouzivat, ID_Kruhu) VALUES "
        "(11, 'Čuvač', '', -1, 1), (12, 'Airedale', '', -1, 1), (13, 'Dalmatin', '', 0, 1), "
        "(14, 'Pudl', '', -1, 0), (15, 'Chodský pes', '', -1, 2), (16, NULL, 'Hovawart', -1, 2)");
    EXPECT_EQ(Text(), u" ¶\n¶\n"
                      "Áčko ¶\n¶\nHovawart ¶\n¶\n¶\nChodský pes ¶\n¶\n¶\n"
                      "Kruh 1 ¶\n¶\nAiredale ¶\n¶\n¶\nBoxer ¶\n¶\n¶\nČuvač ¶\n¶\n¶\n"_s);
}

TEST_F(Catalogue, ABreedWithoutACzechNamePrintsTheOriginalOne) {
    show.Execute("UPDATE Plemena SET Nazev = ''");
    EXPECT_EQ(Text(), u"Kruh 1 ¶\n¶\nDeutscher Boxer ¶\n¶\n¶\n"_s);
}

TEST_F(Catalogue, DogsOfBreedsInNoRingAndOfUnusedBreedsStayOut) {
    AddDog(1, "Rex", true, 1);
    show.Execute("UPDATE Plemena SET Pouzivat = 0");
    EXPECT_EQ(Text(), u"Kruh 1 ¶\n¶\n"_s);
    show.Execute("UPDATE Plemena SET Pouzivat = -1, ID_Kruhu = 0");
    EXPECT_EQ(Text(), u"Kruh 1 ¶\n¶\n"_s);
}

TEST_F(Catalogue, DogsRunBySexClassAndNameWithAHeadingWhereSexOrClassChanges) {
    AddDog(1, "Dora", false, 1);
    AddDog(2, "Cyr", true, 2);
    AddDog(3, "Ben", true, 1, "Cislo = 9");
    AddDog(4, "Alan", true, 1, "Cislo = 10");
    AddDog(5, "Zita", false, 2);
    QStringList lines;
    for (const QString& line : Text().split(u'\n')) {
        if (line.startsWith(u"   ") || line.contains(QRegularExpression(u"^\\d* [A-Z]"_s)))
            lines << line;
    }
    const auto heading = [](const char16_t* sex, std::size_t trida) {
        return u"   "_s + QString::fromUtf16(sex) + u" - třída "_s +
               Module().ClassNames[trida - 1] + u'¶';
    };
    EXPECT_EQ(lines, QStringList({heading(u"Pes", 1), u"10 Alan ¶"_s, u"9 Ben ¶"_s,
                                  heading(u"Pes", 2), u" Cyr ¶"_s, heading(u"Fena", 1),
                                  u" Dora ¶"_s, heading(u"Fena", 2), u" Zita ¶"_s}));
}

TEST_F(Catalogue, TheFirstDogOfEveryBreedHasItsHeading) {
    show.Execute("INSERT INTO Plemena (ID, Nazev, Pouzivat, ID_Kruhu) VALUES (11, 'Čuvač', -1, 1)");
    AddDog(1, "Rex", true, 1);
    AddDog(2, "Asta", true, 1, "PlemenoID = 11");
    EXPECT_EQ(Text().count(u"   Pes - třída "_s), 2);
}

TEST_F(Catalogue, TheIntermediateClassIsNamedByItself) {
    AddDog(1, "Rex", true, 4);
    const QString text = Text();
    EXPECT_TRUE(text.contains(u"   Pes - mezitřída ¶\n"_s)) << text.toStdString();
    EXPECT_FALSE(text.contains(u"- třída"_s));
}

TEST_F(Catalogue, AwardsAreJoinedByCommasAndTheirCaptionAlwaysStands) {
    AddDog(1, "Alan", true, 1);
    AddDog(2, "Ben", true, 1);
    show.Execute("INSERT INTO Oceneni (ID, Nazev) VALUES (1, 'CAC'), (2, 'Vítěz třídy');"
                 "INSERT INTO PsiOceneni (IDPsa, IDOceneni) VALUES (1, 2), (1, 1), (1, 99)");
    const QString text = Text(true);
    EXPECT_TRUE(text.contains(u"\\t  ¶\nOcenění :\\tVítěz třídy, CAC¶\n  o. :"_s))
        << text.toStdString();
    EXPECT_TRUE(text.contains(u"\\t  ¶\nOcenění :\\t¶\n  o. :"_s)) << text.toStdString();
    EXPECT_FALSE(Text(false).contains(u"Ocenění"_s));
}

TEST_F(Catalogue, ADogWhoseOwnerIsGonePrintsTheCaptionAlone) {
    AddDog(1, "Rex", true, 1, "MajitelID = 77");
    EXPECT_TRUE(Text().contains(u"\\tmaj. : ¶\n¶\n¶\n"_s));
}

TEST_F(Catalogue, AClassOutsideTheTableEndsItWithTheDogsName) {
    for (int trida : {0, 21, -2}) {
        SCOPED_TRACE(trida);
        show.Execute("DELETE FROM Psi");
        AddDog(1, "Rex", true, trida);
        try {
            Operations();
            ADD_FAILURE() << "nothing was raised";
        } catch (const RangeError& error) {
            EXPECT_NE(std::string(error.what()).find("„Rex“"), std::string::npos) << error.what();
        }
    }
}

} // namespace lorvo::test
