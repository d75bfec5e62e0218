#include "office/papers/entry_confirmations.h"

#include "app/common_routines.h"
#include "office/papers/document_typing.h"
#include "office/papers/dog_papers.h"
#include "office/papers/report_texts.h"
#include "store/psi_lists.h"

namespace lorvo {

using namespace Qt::StringLiterals;

const std::array<ConfirmationLine, 11> kConfirmationLines = {{
    {u"Nadpis", u"VSTUPNÍ LIST - potvrzení přihlášky", "_uvod_"},
    {u"Úvod",
     u"Na Krajskou výstavu psů ve městě xxx, která se koná dne 14. května 2005 ve Sportovní hale.",
     "_odstavec1_"},
    {u"Odstavec 1",
     u"Tento list opravňuje ke vstupu do areálu výstavy jednu osobu. Za další doprovod platíte "
     u"zvlášť. Nezapomeňte průkaz původu psa, očkovací průkaz nebo veterinární pas. Případné "
     u"nesrovnalosti v údajích nebo zařazení Vašeho psa hlaste ihned při přejímce ve výstavní "
     u"kanceláři, nejpozději do zahájení posuzování.",
     "_odstavec2_"},
    {u"Odstavec 2", u"Přejímka psů probíhá od 7,00 do 9,00 hodin", "_odstavec3_"},
    {u"Odstavec 3", u"Zahájení posuzování v kruzích začíná v 9,15 hodin", "_odstavec4_"},
    {u"Odstavec 4",
     u"Při vstupu na výstavu projdete veterinární kontrolou a na základě tohoto vstupního listu "
     u"obdržíte katalog a katalogové číslo. Po ukončení posuzování v kruzích proběhnou závěrečné "
     u"soutěže o psa divácké sympatie, Dítě a pes, Nejkrásnější veterán, Nejkrásnější pár. "
     u"V závěrečném defilé Krajských vítězů a Vítězů speciální a klubové výstavy bude vyhodnocen "
     u"Vítěz Zlína 2005.",
     "_odstavec5_"},
    {u"Odstavec 5", u"Pro vítěze v soutěžích jsou připraveny hodnotné ceny.", "_odstavec6_"},
    {u"Odstavec 6",
     u"Žádáme vystavovatele o udržování čistoty a dodržení zákazu kouření v areálu celé výstavy.",
     "_odstavec7_"},
    {u"Odstavec 7", u"Na Vaši účast se těší a hezký zážitek z výstavy přeje", "_odstavec8_"},
    {u"Jméno", u"Pavel Rozhodčí", "_jmeno_"},
    {u"Titul", u"Vedoucí výstavní kanceláře", "_titul_"},
}};

namespace {

/// Heading and opening sentence stand above the dog's data, the other texts below.
constexpr int kLinesAboveDog = 2;
constexpr double kFirstLineIndent = CentimetersToPoints(1.25);

std::vector<DogField> ConfirmationFields(const QStringList& textLines) {
    std::vector<DogField> fields = OwnerAddressFields();
    const auto addTextLine = [&](int line) {
        fields.push_back(FixedField<DogPaper>(
            kConfirmationLines[static_cast<std::size_t>(line)].placeholder, textLines[line]));
    };
    fields.push_back(FixedField<DogPaper>("_adresa_", {}));
    for (int line = 0; line < kLinesAboveDog; ++line)
        addTextLine(line);
    const auto add = [&](const char* placeholder, auto text) {
        fields.push_back(TextField<DogPaper>(placeholder, text));
    };
    add("_katcislo_", [](const DogPaper& paper) { return NumberOf(paper.dog); });
    add("_jmenopsa_", [](const DogPaper& paper) { return FullNameOf(paper.dog); });
    add("_plemeno_", BreedOf);
    add("_trida_", [](const DogPaper& paper) { return ClassNameOf(paper.dog); });
    for (int line = kLinesAboveDog; line < textLines.size(); ++line)
        addTextLine(line);
    return fields;
}

class ConfirmationTypist {
  public:
    ConfirmationTypist(WordProcessor& word, const QStringList& textLines)
        : word_(word), textLines_(textLines) {}

    void TypeSheet(const DogPaper& paper) {
        TypeAddress(paper.owner);
        TypeOpening();
        TypeDog(paper);
        TypeParagraphTexts();
        TypeSignature();
    }

  private:
    void TypeAddress(const Majitele* owner);
    void TypeOpening();
    void TypeDog(const DogPaper& paper);
    void TypeParagraphTexts();
    void TypeSignature();

    void SetFont(double size, FontSwitch bold) {
        word_.SetFontSize(size);
        word_.SetBold(bold);
    }

    WordProcessor& word_;
    const QStringList& textLines_;
};

/// Where the window of an envelope shows it.
void ConfirmationTypist::TypeAddress(const Majitele* owner) {
    TypeParagraphs(word_, 3);
    word_.SetLeftIndent(CentimetersToPoints(7.0));
    word_.SetFirstLineIndent(kFirstLineIndent);
    TypeLine(word_, owner ? owner->Jmeno : u" "_s);
    TypeLine(word_, owner ? owner->Ulice : u" "_s);
    word_.TypeText(owner ? PostCodeText(owner->PSC) + u' ' + owner->Mesto : u" "_s);
    TypeParagraphs(word_, 5);
    word_.SetLeftIndent(0);
    word_.TypeParagraph();
}

void ConfirmationTypist::TypeOpening() {
    SetFont(18, FontSwitch::On);
    word_.SetAlignment(ParagraphAlignment::Center);
    TypeLine(word_, textLines_[0], 2);
    SetFont(12, FontSwitch::Off);
    word_.SetAlignment(ParagraphAlignment::Left);
    word_.SetFirstLineIndent(kFirstLineIndent);
    TypeLine(word_, textLines_[1], 2);
}

void ConfirmationTypist::TypeDog(const DogPaper& paper) {
    constexpr double kTabStop = CentimetersToPoints(5.0);
    word_.TypeText(u"Katalogové číslo"_s);
    word_.AddTabStop(kTabStop);
    word_.TypeText(u":\t"_s);
    SetFont(16, FontSwitch::On);
    word_.TypeText(NumberOf(paper.dog));
    SetFont(12, FontSwitch::Off);
    word_.TypeParagraph();
    TypeLine(word_, u"Jméno psa:\t"_s + FullNameOf(paper.dog));
    TypeLine(word_, u"Plemeno:\t"_s + BreedOf(paper));
    TypeLine(word_, u"Třída:\t"_s + ClassNameOf(paper.dog), 2);
    word_.ClearTabStop(kTabStop);
}

void ConfirmationTypist::TypeParagraphTexts() {
    constexpr std::array kParagraphMarks = {2, 1, 2, 1, 2, 2, 3};
    for (std::size_t i = 0; i < kParagraphMarks.size(); ++i)
        TypeLine(word_, textLines_[kLinesAboveDog + static_cast<int>(i)], kParagraphMarks[i]);
}

void ConfirmationTypist::TypeSignature() {
    word_.SetLeftIndent(CentimetersToPoints(8.75));
    word_.SetFirstLineIndent(0);
    TypeLine(word_, textLines_[9]);
    TypeLine(word_, textLines_[10]);
    word_.SetLeftIndent(0);
    word_.InsertPageBreak();
}

} // namespace

void AppendConfirmations(QByteArray& output, const QByteArray& pattern,
                         const QStringList& textLines, RunProgress& progress) {
    AppendDogPapers(output, pattern, ConfirmationFields(textLines), progress);
}

void TypeConfirmations(WordProcessor& word, const QStringList& textLines, RunProgress& progress) {
    const DogPapers papers(FirstFiveDogsByNumber);
    ConfirmationTypist typist(word, textLines);
    word.SetOrientation(PageOrientation::Portrait);
    word.KeepSheetsWhole();
    word.SetFontName(u"Tahoma"_s);
    WalkRows(papers.All(), progress, [&](const DogPaper& paper) { typist.TypeSheet(paper); });
    word.HomeKeyStory();
    word.SetZoomWholePage();
}

} // namespace lorvo
