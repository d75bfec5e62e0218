// The catalogue as it comes out on paper.

#include "office/papers/catalogue.h"
#include "platform/docx/docx_word_processor.h"
#include "support/office_program.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// Two rings with three breeds, males and bitches of two classes in each breed.
void FillShow(TempDatabase& show) {
    show.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'Kruh 1 – pracovní plemena'), "
                 "(2, 'Kruh 2 – společenská plemena');"
                 "INSERT INTO Plemena (ID, Nazev, NazevOrig, Pouzivat, ID_Kruhu) VALUES "
                 "(10, 'Boxer', '', -1, 1), (11, 'Čuvač', '', -1, 1), (12, '', 'Pug', -1, 2);"
                 "INSERT INTO Majitele (ID, Jmeno) VALUES (1, 'Novák Jan'), (2, 'Žižková Eliška');"
                 "INSERT INTO Oceneni (ID, Nazev) VALUES (1, 'CAC'), (2, 'Vítěz třídy');"
                 "INSERT INTO PsiOceneni (IDPsa, IDOceneni) VALUES (1, 1), (1, 2)");
    for (int i = 0; i < 36; ++i)
        show.Execute(
            "INSERT INTO Psi (Jmeno, ChovnaStanice, Cislo, PlemenoID, MajitelID, PohlaviPes, "
            "DatumNar, Trida, Otec, Matka, PK, Chovatel) VALUES ('Dog" +
            std::to_string(i) + "', 'z Podlesí', " + std::to_string(i + 1) + ", " +
            std::to_string(10 + i / 12) + ", " + std::to_string(1 + i % 2) + ", " +
            (i / 6 % 2 == 0 ? "-1" : "0") + ", '2003-05-14T00:00:00', " +
            std::to_string(3 + i / 3 % 2) +
            ", 'Áron z Dvora', 'Bára od Řeky', 'CMKU/B/1234/03', 'Dvořák Petr, Zlín')");
}

} // namespace

class CatalogueRendering : public testing::Test {
  protected:
    CatalogueRendering() { FillShow(show_); }
    QString Pdf(FontSet fonts) {
        DocxWordProcessors processors(*ThePlatform().opener, *ThePlatform().clock,
                                      platform_.ProgramFolder());
        const auto word = processors.Create(u"Katalog"_s);
        TypeCatalogue(*word, true);
        return PdfOf(word->Show().path, platform_.ProgramFolder(), fonts);
    }

    RecordingPlatform platform_;
    TempDatabase show_;
};

TEST_F(CatalogueRendering, ReadsInTwoColumnsOnALandscapePage) {
    ASSERT_TRUE(HasOfficeProgram()) << "test.sh installs the office program that lays this out";
    const QString pdf = Pdf(FontSet::Liberation);
    EXPECT_TRUE(PdfInfo(pdf).contains(QRegularExpression(u"Page size: +841\\.\\d+ x 595"_s)));
    const QString first = PdfPages(pdf).first();
    const auto neighbours = QRegularExpression(u"Dog0 z Podlesí {4,}[^ ]"_s);
    EXPECT_FALSE(first.split(u'\n').filter(neighbours).isEmpty()) << "no two columns:\n"
                                                                  << first.toStdString();
    for (const char16_t* text :
         {u"Kruh 1 – pracovní plemena", u"Boxer", u"   Pes - mezitřída", u"1 Dog0 z Podlesí",
          u"nar. : 14.5.2003", u"CAC, Vítěz třídy", u"maj. : Žižková Eliška"})
        EXPECT_TRUE(first.contains(QString::fromUtf16(text).trimmed()))
            << QString::fromUtf16(text).toStdString();
}

TEST_F(CatalogueRendering, NoEntryIsTornAndNoHeadingStandsAloneWithAnyFonts) {
    ASSERT_TRUE(HasOfficeProgram()) << "test.sh installs the office program that lays this out";
    constexpr int kHalfPage = 397; // the first column ends at 375 points, the second begins at 410
    const auto begins = QRegularExpression(u"^(Kruh|Boxer|Čuvač|Pug| *Pes -| *Fena -|"
                                           "\\d+ Dog)"_s);
    QStringList beginnings;
    for (const FontSet fonts : kFontSets) {
        QStringList firstLines;
        for (const QString& column : PdfColumns(Pdf(fonts), kHalfPage, 2)) {
            const QStringList lines = column.split(u'\n', Qt::SkipEmptyParts);
            if (lines.isEmpty())
                continue;
            const QString first = lines.first().trimmed();
            EXPECT_TRUE(first.contains(begins)) << first.toStdString();
            EXPECT_TRUE(lines.last().contains(u"ch. :"_s)) << lines.last().toStdString();
            firstLines << first;
        }
        EXPECT_GT(firstLines.size(), 4) << NameOf(fonts).toStdString();
        if (beginnings.isEmpty())
            beginnings = firstLines;
        EXPECT_EQ(firstLines, beginnings) << NameOf(fonts).toStdString();
    }
}

} // namespace lorvo::test
