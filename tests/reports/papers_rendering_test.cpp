// The documents as they come out on paper, all laid out in one go.

#include "office/papers/breed_overview.h"
#include "office/papers/diplomas.h"
#include "office/papers/dog_lists.h"
#include "office/papers/entry_confirmations.h"
#include "office/papers/exhibitor_list.h"
#include "office/papers/judging_sheets.h"
#include "office/papers/payment_report.h"
#include "platform/docx/docx_word_processor.h"
#include "reports/paper_fixture.h"
#include "support/office_program.h"

#include <QFile>

namespace lorvo::test {

namespace {

class UnstoppedRun final : public RunProgress {
  public:
    bool Advance(int, int) override { return true; }
};

class PapersRendering : public PaperFixture {
  protected:
    /// Puts a document into the program's folder under a name.
    void Type(const QString& name, const std::function<void(WordProcessor&)>& type) {
        DocxWordProcessors processors(*ThePlatform().opener, platform.ProgramFolder());
        const auto word = processors.Create();
        type(*word);
        word->Show();
        const QString path = platform.ProgramFolder() + u'/' + name + u".docx"_qs;
        ASSERT_TRUE(QFile::copy(platform.openedFiles.last(), path));
        documents << path;
    }
    QString Pdf(const QString& name) const {
        return platform.ProgramFolder() + u'/' + name + u".pdf"_qs;
    }
    /// The pages of a paper, but for the empty one behind the last page break.
    QStringList Pages(const QString& name) const {
        QStringList pages = PdfPages(Pdf(name));
        while (!pages.isEmpty() && pages.last().trimmed().isEmpty())
            pages.removeLast();
        return pages;
    }

    QStringList documents;
    UnstoppedRun run;
};

} // namespace

TEST_F(PapersRendering, EverySheetIsOnePageAndEveryListReadsInItsColumns) {
    ASSERT_TRUE(HasOfficeProgram()) << "test.sh installs the office program that lays this out";
    QStringList lines;
    for (const ConfirmationLine& line : kConfirmationLines)
        lines << QString::fromUtf16(line.text);
    Type(u"confirmations"_qs, [&](auto& word) { TypeConfirmations(word, lines, run); });
    Type(u"sheets"_qs, [&](auto& word) { TypeJudgingSheets(word, u"Krajská výstava"_qs, run); });
    Type(u"diplomas"_qs, [&](auto& word) { TypeDiplomas(word, run); });
    Type(u"dogs"_qs, [&](auto& word) { TypeDogList(word, DogGrouping::ByBreed, run); });
    Type(u"exhibitors"_qs, [](auto& word) { TypeExhibitors(word); });
    Type(u"payments"_qs, [&](auto& word) { TypePayments(word, run); });
    Type(u"overview"_qs, [](auto& word) { TypeBreedOverview(word, u"Krajská výstava"_qs); });
    MakePdfs(documents, platform.ProgramFolder(), platform.ProgramFolder());

    EXPECT_EQ(Pages(u"confirmations"_qs).size(), 5);
    const QStringList sheets = Pages(u"sheets"_qs);
    EXPECT_EQ(sheets.size(), 7);
    for (const QString& sheet : sheets)
        EXPECT_TRUE(sheet.contains(u"POSUDEK:"_qs) && sheet.contains(u"podpis rozhodčího"_qs));
    EXPECT_EQ(Pages(u"diplomas"_qs).size(), 7);
    EXPECT_TRUE(PdfInfo(Pdf(u"dogs"_qs)).contains(u"841."_qs));
    for (const QString& list : {u"dogs"_qs, u"exhibitors"_qs, u"payments"_qs, u"overview"_qs})
        EXPECT_EQ(Pages(list).size(), 1) << list.toStdString();
    EXPECT_TRUE(Pages(u"exhibitors"_qs).first().contains(u"Eva Krátká 1 Ústí nad Labem 012 34"_qs));
    EXPECT_TRUE(Pages(u"payments"_qs).first().contains(u"složenkou"_qs));
}

} // namespace lorvo::test
