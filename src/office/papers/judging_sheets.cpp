#include "office/papers/judging_sheets.h"

#include "office/papers/document_typing.h"
#include "office/papers/dog_papers.h"
#include "office/papers/report_texts.h"
#include "store/psi_lists.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// A line of the sheet's upper part.
struct SheetLine {
    const char16_t* caption;
    QString (*text)(const DogPaper&);
};

constexpr SheetLine kSheetLines[] = {
    {u"Katalogové číslo:",
     [](const DogPaper& paper) {
         return NumberOf(paper.dog);
     }},
    {u"Plemeno:", CzechBreedOf},
    {u"Jméno psa a chov. stanice:",
     [](const DogPaper& paper) {
         return FullNameOf(paper.dog);
     }},
    {u"Pohlaví:",
     [](const DogPaper& paper) {
         return SexOf(paper.dog);
     }},
    {u"Datum narození:",
     [](const DogPaper& paper) {
         return BirthDateOf(paper.dog);
     }},
    {u"PK a číslo zápisu:",
     [](const DogPaper& paper) {
         return paper.dog.PK;
     }},
    {u"Majitel:", OwnerOf},
    {u"Třída:",
     [](const DogPaper& paper) {
         return ClassNameOf(paper.dog);
     }},
};

std::vector<DogField> SheetFields(const QString& title) {
    const auto field = [](const char* placeholder, auto text) {
        return TextField<DogPaper>(placeholder, text);
    };
    return {
        FixedField<DogPaper>("_nadpis_", title),
        field("_katcislo_", [](const DogPaper& paper) { return NumberOf(paper.dog); }),
        field("_jmenopsa_", [](const DogPaper& paper) { return paper.dog.Jmeno; }),
        field("_pohlavi_", [](const DogPaper& paper) { return SexOf(paper.dog); }),
        field("_PK_", [](const DogPaper& paper) { return paper.dog.PK; }),
        field("_trida_", [](const DogPaper& paper) { return ClassNameOf(paper.dog); }),
        field("_dnarozeni_", [](const DogPaper& paper) { return BirthDateOf(paper.dog); }),
        field("_plemeno_", CzechBreedOf),
        field("_majitel_", OwnerOf),
    };
}

class SheetTypist {
  public:
    SheetTypist(WordProcessor& word, const QString& title) : word_(word), title_(title) {}

    void SetUpPage();
    void TypeSheet(const DogPaper& paper);

  private:
    void TypeTitle();
    void TypeDog(const DogPaper& paper);
    void TypeRoomForReport();
    void TypeRoomForAward();
    void TypeSignature();

    void TypeRule(int hyphens);
    void SetAlignment(ParagraphAlignment alignment) { word_.SetAlignment(alignment); }

    WordProcessor& word_;
    const QString& title_;
};

void SheetTypist::SetUpPage() {
    constexpr double kMargin = CentimetersToPoints(1.5);
    constexpr double kEdgeDistance = CentimetersToPoints(1.25);
    word_.SetOrientation(PageOrientation::Portrait);
    word_.SetTopMargin(kMargin);
    word_.SetBottomMargin(kMargin);
    word_.SetLeftMargin(kMargin);
    word_.SetRightMargin(kMargin);
    word_.SetGutter(0);
    word_.SetHeaderDistance(kEdgeDistance);
    word_.SetFooterDistance(kEdgeDistance);
    word_.SetPageSize(CentimetersToPoints(21.0), CentimetersToPoints(29.7));
    word_.SetFontName(u"Arial"_s);
}

void SheetTypist::TypeSheet(const DogPaper& paper) {
    TypeTitle();
    TypeDog(paper);
    TypeRoomForReport();
    TypeRoomForAward();
    TypeSignature();
    word_.InsertPageBreak();
}

void SheetTypist::TypeTitle() {
    word_.SetFontSize(16);
    word_.SetBold(FontSwitch::On);
    SetAlignment(ParagraphAlignment::Center);
    TypeLine(word_, title_);
    word_.TypeParagraph();
    TypeRule(86);
}

void SheetTypist::TypeDog(const DogPaper& paper) {
    SetAlignment(ParagraphAlignment::Left);
    word_.SetFontSize(11);
    word_.AddTabStop(CentimetersToPoints(6.5));
    for (const SheetLine& line : kSheetLines) {
        word_.SetBold(FontSwitch::On);
        word_.TypeText(QString::fromUtf16(line.caption) + u'\t');
        word_.SetBold(FontSwitch::Off);
        TypeLine(word_, line.text(paper));
    }
    word_.TypeParagraph();
}

void SheetTypist::TypeRoomForReport() {
    SetAlignment(ParagraphAlignment::Center);
    TypeRule(138);
    SetAlignment(ParagraphAlignment::Left);
    word_.SetBold(FontSwitch::On);
    word_.TypeParagraph();
    TypeLine(word_, u"POSUDEK:"_s);
    SetAlignment(ParagraphAlignment::Left);
    word_.SetFontSize(11);
    TypeParagraphs(word_, 28);
}

void SheetTypist::TypeRoomForAward() {
    SetAlignment(ParagraphAlignment::Center);
    TypeRule(138);
    SetAlignment(ParagraphAlignment::Left);
    TypeLine(word_, u"OCENĚNÍ:"_s);
    SetAlignment(ParagraphAlignment::Center);
    TypeParagraphs(word_, 6);
    TypeRule(138);
}

void SheetTypist::TypeSignature() {
    SetAlignment(ParagraphAlignment::Right);
    TypeParagraphs(word_, 3);
    TypeLine(word_, u"__________________"_s);
    word_.TypeText(u"podpis rozhodčího"_s);
}

void SheetTypist::TypeRule(int hyphens) {
    TypeLine(word_, QString(hyphens, u'-'));
}

} // namespace

void AppendJudgingSheets(QByteArray& output, const QByteArray& pattern, const QString& title,
                         RunProgress& progress) {
    AppendDogPapers(output, pattern, SheetFields(title), progress);
}

void TypeJudgingSheets(WordProcessor& word, const QString& title, RunProgress& progress) {
    const DogPapers dogs(DogsByNumber);
    const std::vector<DogPaper> papers = dogs.All();
    SheetTypist typist(word, title);
    typist.SetUpPage();
    word.KeepSheetsWhole();
    bool goesOn = true;
    for (std::size_t i = 0; goesOn && i < papers.size(); ++i) {
        goesOn = progress.Advance(static_cast<int>(i + 1), static_cast<int>(papers.size()));
        typist.TypeSheet(papers[i]);
    }
    word.HomeKeyStory();
    word.SetPrintView();
    word.SetZoomWholePage();
}

} // namespace lorvo
