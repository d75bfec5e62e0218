#include "office/papers/diplomas.h"

#include "office/papers/document_typing.h"
#include "office/papers/dog_papers.h"
#include "office/papers/report_texts.h"
#include "store/psi_lists.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Lines down to where the text clears the diploma's printed head.
constexpr int kLinesOfHead = 24;

QString LineBreak() {
    return u"\r\n"_s;
}

/// The template may be one of the entry confirmations, whose editable texts are empty here.
std::vector<DogField> DiplomaFields() {
    std::vector<DogField> fields = OwnerAddressFields();
    for (const char* placeholder : {"_adresa_", "_uvod_", "_odstavec1_"})
        fields.push_back(FixedField<DogPaper>(placeholder, {}));
    const auto add = [&](const char* placeholder, auto text) {
        fields.push_back(TextField<DogPaper>(placeholder, text));
    };
    add("_katcislo_", [](const DogPaper& paper) { return NumberOf(paper.dog); });
    add("_jmenopsa_", [](const DogPaper& paper) { return FullNameOf(paper.dog); });
    add("_plemeno_", CzechBreedOf);
    add("_trida_", [](const DogPaper& paper) { return ClassNameOf(paper.dog); });
    return fields;
}

void TypeDiploma(WordProcessor& word, const DogPaper& paper, const QString& spacing) {
    word.SetFontName(u"Arial"_s);
    word.SetBold(FontSwitch::Toggle);
    word.SetFontSize(12);
    word.SetAlignment(ParagraphAlignment::Center);
    word.TypeText(spacing);
    word.TypeText(paper.dog.PohlaviPes ? u"pes "_s : u"fena "_s);
    word.SetFontSize(16);
    word.TypeText(FullNameOf(paper.dog) + LineBreak());
    word.SetFontSize(12);
    word.TypeText(LineBreak());
    word.SetBold(FontSwitch::Toggle);
    if (paper.owner)
        word.TypeText(u"majitel: "_s + paper.owner->Jmeno + LineBreak());
    word.TypeText(LineBreak());
    word.SetBold(FontSwitch::Off);
    word.SetFontSize(12);
    word.TypeText(u"Třída "_s + ClassNameOf(paper.dog) + LineBreak());
    word.InsertPageBreak();
}

} // namespace

void AppendDiplomas(QByteArray& output, const QByteArray& pattern, RunProgress& progress) {
    AppendDogPapers(output, pattern, DiplomaFields(), progress);
}

void TypeDiplomas(WordProcessor& word, RunProgress& progress) {
    const DogPapers papers(DogsByName);
    const QString spacing = LineBreak().repeated(kLinesOfHead);
    word.SetOrientation(PageOrientation::Portrait);
    word.KeepSheetsWhole();
    WalkRows(papers.All(), progress,
             [&](const DogPaper& paper) { TypeDiploma(word, paper, spacing); });
    word.SetPrintView();
    word.HomeKeyStory();
}

} // namespace lorvo
