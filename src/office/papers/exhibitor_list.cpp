#include "office/papers/exhibitor_list.h"

#include "app/common_routines.h"
#include "office/papers/document_typing.h"
#include "office/papers/dog_papers.h"
#include "store/data_module.h"
#include "store/psi_lists.h"

#include <QStringList>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Leaves the numbers behind their tab stop the room for those of four or five dogs.
constexpr double kSideMargin = CentimetersToPoints(1.0);

struct Exhibitor {
    Majitele owner;
    QString numbers; ///< of the dogs, with commas between them
};

using Numbers = std::vector<std::optional<int>>;

/// A dog without a number leaves its place between the commas empty.
QString NumbersText(const Numbers& numbers) {
    QStringList texts;
    for (const std::optional<int>& number : numbers)
        texts << (number ? QString::number(*number) : QString());
    return texts.join(u',');
}

std::vector<Exhibitor> Exhibitors() {
    const ReadRun run(TheDataModule().Conn1);
    auto numbers = DogNumbersByOwner();
    std::vector<Exhibitor> exhibitors;
    for (Majitele& owner : OwnersByName()) {
        const int ID = owner.ID;
        exhibitors.push_back({std::move(owner), NumbersText(numbers[ID])});
    }
    return exhibitors;
}

std::vector<RowField<Exhibitor>> ExhibitorFields() {
    std::vector<RowField<Exhibitor>> fields;
    for (const OwnerText& part : kOwnerAddress)
        fields.push_back(
            TextField<Exhibitor>(part.placeholder, [text = part.text](const Exhibitor& exhibitor) {
                return text(exhibitor.owner);
            }));
    // kept: raw-numbers-placeholder
    fields.push_back({"_cislapsu_", [](const Exhibitor& exhibitor) {
                          return exhibitor.numbers.isEmpty()
                                     ? std::nullopt
                                     : std::optional(ToCp1250(exhibitor.numbers));
                      }});
    return fields;
}

void TypeHeading(WordProcessor& word) {
    word.SetFontName(u"Arial"_s);
    word.SetKeepWithNext(true);
    word.SetBold(FontSwitch::On);
    word.SetItalic(true);
    word.SetUnderline(true);
    word.SetFontSize(14);
    TypeLine(word, u"Seznam vystavovatelů"_s, 2);
    word.AddTabStop(CentimetersToPoints(23.0));
    word.SetItalic(false);
    word.SetUnderline(false);
    word.SetFontSize(10);
    word.TypeText(u"Vystavovatel\tKatalog.č."_s);
    word.SetBold(FontSwitch::Off);
    TypeParagraphs(word, 2);
    word.SetKeepWithNext(false);
}

void TypeExhibitor(WordProcessor& word, const Exhibitor& exhibitor) {
    const Majitele& owner = exhibitor.owner;
    word.SetBold(FontSwitch::Off);
    word.TypeText(owner.Jmeno + u' ' + owner.Ulice + u' ' + owner.Mesto + u' ' +
                  PostCodeText(owner.PSC));
    if (!exhibitor.numbers.isEmpty()) {
        word.TypeText(u"\t"_s);
        word.SetBold(FontSwitch::On);
        word.TypeText(exhibitor.numbers);
    }
    word.TypeParagraph();
}

} // namespace

void AppendExhibitors(QByteArray& output, const QByteArray& pattern, RunProgress& progress) {
    RowFiller<Exhibitor> filler(pattern, ExhibitorFields());
    WalkRows(Exhibitors(), progress,
             [&](const Exhibitor& exhibitor) { filler.AppendTo(output, exhibitor); });
}

void TypeExhibitors(WordProcessor& word) {
    word.SetOrientation(PageOrientation::Landscape);
    word.SetLeftMargin(kSideMargin);
    word.SetRightMargin(kSideMargin);
    TypeHeading(word);
    for (const Exhibitor& exhibitor : Exhibitors())
        TypeExhibitor(word, exhibitor);
    word.HomeKeyStory();
}

} // namespace lorvo
