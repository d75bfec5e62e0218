// The documents as they come out on paper, with three sets of fonts, on a small show and on one
// whose fields are full.

#include "office/papers/breed_overview.h"
#include "office/papers/catalogue.h"
#include "office/papers/diplomas.h"
#include "office/papers/dog_lists.h"
#include "office/papers/entry_confirmations.h"
#include "office/papers/exhibitor_list.h"
#include "office/papers/judging_sheets.h"
#include "office/papers/payment_report.h"
#include "platform/docx/docx_word_processor.h"
#include "reports/paper_fixture.h"
#include "support/office_program.h"
#include "support/schema_order.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>
#include <map>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class UnstoppedRun final : public RunProgress {
  public:
    bool Advance(int, int) override { return true; }
};

/// A text of that many letters in words, some of which are wide.
QString Full(int letters, const QString& words) {
    return words.repeated(letters / static_cast<int>(words.size()) + 1).first(letters);
}

/// Pages of each document by its title.
using Layout = std::map<QString, QStringList>;

class PapersRendering : public PaperFixture {
  protected:
    /// Every dog with a kennel, a breed and an owner whose fields are full.
    void FillFields() {
        const QString dog = Full(50, u"Alexandrova Mája Žofie "_s);
        const QString kennel = Full(150, u"z Moravského Krumlova WÜRTTEMBERG "_s);
        const QString street = Full(255, u"Náměstí Svobody v Dolním Městě "_s);
        const QString breed = Full(255, u"Německý Ohař Drátosrstý "_s);
        const auto set = [this](const char* statement, const QStringList& values) {
            QString sql = QString::fromUtf8(statement);
            for (const QString& value : values)
                sql.replace(sql.indexOf(u'?'), 1, u'\'' + value + u'\'');
            show.Execute(sql.toStdString());
        };
        set("UPDATE Psi SET Jmeno = ?, ChovnaStanice = ?, PK = ?", {dog, kennel, kennel.left(50)});
        set("UPDATE Plemena SET Nazev = ?", {breed});
        set("UPDATE Majitele SET Jmeno = ?, Prijmeni = ?, Ulice = ?, Mesto = ?",
            {Full(50, u"Evženie Dvořáková "_s), Full(50, u"Nováková Malá "_s), street,
             Full(100, u"Ústí nad Labem "_s)});
    }

    void TypeAll() {
        QStringList lines;
        for (const ConfirmationLine& line : kConfirmationLines)
            lines << QString::fromUtf16(line.text);
        const QString title = u"Krajská výstava psů společenských plemen Zlín 14. května 2005"_s;
        Type(u"Katalog"_s, [](auto& word) { TypeCatalogue(word, true); });
        Type(u"Pozvánky"_s, [&](auto& word) { TypeConfirmations(word, lines, run_); });
        Type(u"Posudkové listy"_s, [&](auto& word) { TypeJudgingSheets(word, title, run_); });
        Type(u"Diplomy"_s, [&](auto& word) { TypeDiplomas(word, run_); });
        Type(u"Seznam psů"_s, [&](auto& word) { TypeDogList(word, DogGrouping::ByBreed, run_); });
        Type(u"Seznam vystavovatelů"_s, [](auto& word) { TypeExhibitors(word); });
        Type(u"Platby"_s, [&](auto& word) { TypePayments(word, run_); });
        Type(u"Přehled plemen"_s, [&](auto& word) { TypeBreedOverview(word, title); });
    }

    Layout LaidOutWith(FontSet fonts) {
        const QString folder = platform.ProgramFolder() + u'/' + NameOf(fonts);
        QDir().mkpath(folder);
        MakePdfs(documents_.values(), folder, platform.ProgramFolder(), fonts);
        Layout layout;
        for (const QString& title : documents_.keys())
            layout[title] = PdfPages(folder + u'/' +
                                     QFileInfo(documents_[title]).completeBaseName() + u".pdf"_s);
        return layout;
    }

    /// Each page has the same text whatever the fonts.
    void ExpectAlike(const Layout& layout, const Layout& other, FontSet fonts) {
        for (const auto& [title, pages] : layout) {
            const QStringList& otherPages = other.at(title);
            ASSERT_EQ(pages.size(), otherPages.size())
                << title.toStdString() << " with " << NameOf(fonts).toStdString();
            for (qsizetype i = 0; i < pages.size(); ++i)
                EXPECT_EQ(LettersOf(pages[i]), LettersOf(otherPages[i]))
                    << title.toStdString() << " page " << i + 1 << " with "
                    << NameOf(fonts).toStdString();
        }
    }

    void ExpectSheets(const Layout& layout) {
        EXPECT_EQ(layout.at(u"Pozvánky"_s).size(), 5 + 1) << "with the page behind the last break";
        EXPECT_EQ(layout.at(u"Diplomy"_s).size(), 7 + 1);
        const QStringList sheets = layout.at(u"Posudkové listy"_s);
        ASSERT_EQ(sheets.size(), 7 + 1);
        for (const QString& sheet : sheets.first(7))
            EXPECT_TRUE(sheet.contains(u"POSUDEK:"_s) && sheet.contains(u"podpis rozhodčího"_s));
    }

  private:
    void Type(const QString& title, const std::function<void(WordProcessor&)>& type) {
        DocxWordProcessors processors(*ThePlatform().opener, *ThePlatform().clock,
                                      platform.ProgramFolder());
        const auto word = processors.Create(title);
        type(*word);
        documents_[title] = word->Show().path;
        ExpectSchemaOrder(documents_[title]);
    }

    /// In the order of the alphabet: what stands side by side is read in this order or that, with
    /// or without blanks between.
    static std::string LettersOf(const QString& page) {
        QString letters = page;
        letters.remove(QRegularExpression(u"\\s"_s));
        std::sort(letters.begin(), letters.end());
        return letters.toStdString();
    }

    QMap<QString, QString> documents_; ///< paths by title
    UnstoppedRun run_;
};

} // namespace

TEST_F(PapersRendering, EveryPaperHasTheSamePagesWithThreeSetsOfFonts) {
    ASSERT_TRUE(HasOfficeProgram()) << "test.sh installs the office program that lays this out";
    show.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'Kruh 1');"
                 "UPDATE Plemena SET ID_Kruhu = 1");
    TypeAll();
    const Layout layout = LaidOutWith(FontSet::Liberation);
    ExpectSheets(layout);
    for (const QString& list : {u"Katalog"_s, u"Seznam psů"_s, u"Seznam vystavovatelů"_s,
                                u"Platby"_s, u"Přehled plemen"_s})
        EXPECT_EQ(layout.at(list).size(), 1) << list.toStdString();
    EXPECT_TRUE(layout.at(u"Seznam vystavovatelů"_s)
                    .first()
                    .contains(u"Eva Krátká 1 Ústí nad Labem 012 34"_s));
    EXPECT_TRUE(layout.at(u"Platby"_s).first().contains(u"složenkou"_s));
    for (const FontSet fonts : {FontSet::Urw, FontSet::DejaVu})
        ExpectAlike(layout, LaidOutWith(fonts), fonts);
}

TEST_F(PapersRendering, FullFieldsStayOnTheirSheetWithEverySetOfFonts) {
    ASSERT_TRUE(HasOfficeProgram()) << "test.sh installs the office program that lays this out";
    FillFields();
    TypeAll();
    for (const FontSet fonts : kFontSets)
        ExpectSheets(LaidOutWith(fonts));
}

} // namespace lorvo::test
