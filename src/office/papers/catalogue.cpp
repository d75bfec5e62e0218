#include "office/papers/catalogue.h"

#include "office/papers/document_typing.h"
#include "office/papers/report_texts.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/majitele.h"
#include "store/psi_oceneni.h"

#include <QStringBuilder>
#include <algorithm>
#include <span>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Class of dogs that stand between two shows' ages; the catalogue names it in one word.
constexpr int kIntermediateClass = 4;
constexpr int kNoClass = -1;

/// All rows of the catalogue, read in a few statements and kept by what they belong to.
struct CatalogueRows {
    explicit CatalogueRows(bool withAwards);

    std::vector<Kruhy> rings;
    std::unordered_map<int, std::vector<Plemena>> breeds; ///< by ring
    std::vector<Psi> allDogs;
    std::unordered_map<int, std::span<const Psi>> dogs; ///< of them, by breed
    std::unordered_map<int, QString> owners;
    std::unordered_map<int, QStringList> awards; ///< by dog
};

CatalogueRows::CatalogueRows(bool withAwards) {
    const ReadRun run(TheDataModule().Conn1);
    rings = RingsByName();
    for (Plemena& breed : BreedsByRing()) {
        if (breed.Pouzivat)
            breeds[breed.ID_Kruhu].push_back(std::move(breed));
    }
    allDogs = DogsByBreed();
    for (auto first = allDogs.cbegin(); first != allDogs.cend();) {
        const auto isOther = [breed = first->PlemenoID](const Psi& dog) {
            return dog.PlemenoID != breed;
        };
        const auto last = std::find_if(first, allDogs.cend(), isOther);
        dogs.emplace(first->PlemenoID, std::span(first, last));
        first = last;
    }
    owners = OwnerNames();
    if (withAwards)
        awards = AwardNamesByDog();
}

/// What is kept under the key, or an empty one.
template<typename Map> const typename Map::mapped_type& Under(const Map& map, int key) {
    static const typename Map::mapped_type none;
    const auto found = map.find(key);
    return found == map.end() ? none : found->second;
}

class CatalogueTypist {
  public:
    CatalogueTypist(WordProcessor& word, bool withAwards)
        : word_(word), withAwards_(withAwards), rows_(withAwards) {}

    void Type();

  private:
    void TypeRing(const Kruhy& ring);
    void TypeBreed(const Plemena& breed);
    void TypeDog(const Psi& dog);
    void TypeClassHeading(const Psi& dog);
    void TypeNameAndBirth(const Psi& dog);
    void TypeAwards(const Psi& dog);
    void TypeParentsAndPeople(const Psi& dog);
    void SetUpPage();

    void SetHeadingFont(double size, bool underlined);

    WordProcessor& word_;
    const bool withAwards_;
    const CatalogueRows rows_;

    // Class and sex of the dog before; the sex is remembered from one breed to the next.
    int lastClass_ = kNoClass;
    bool lastMale_ = false;
};

constexpr double kColumnWidth = CentimetersToPoints(11.72);
constexpr double kFirstTabStop = CentimetersToPoints(1.0);
constexpr double kSecondTabStop = CentimetersToPoints(6.0);

void CatalogueTypist::Type() {
    word_.SetOrientation(PageOrientation::Landscape);
    word_.ExpectLines(kColumnWidth, {kFirstTabStop, kSecondTabStop});
    for (const Kruhy& ring : rows_.rings)
        TypeRing(ring);
    SetUpPage();
}

void CatalogueTypist::TypeRing(const Kruhy& ring) {
    SetHeadingFont(12, true);
    word_.SetKeepWithNext(true);
    word_.TypeText(ring.Nazev + u' ');
    TypeParagraphs(word_, 2);
    for (const Plemena& breed : Under(rows_.breeds, ring.ID))
        TypeBreed(breed);
}

void CatalogueTypist::TypeBreed(const Plemena& breed) {
    lastClass_ = kNoClass;
    SetHeadingFont(14, false);
    word_.SetKeepWithNext(true);
    word_.TypeText(BreedNameOf(breed) + u' ');
    TypeParagraphs(word_, 2);
    for (const Psi& dog : Under(rows_.dogs, breed.ID))
        TypeDog(dog);
    word_.SetKeepWithNext(false);
    TypeParagraphs(word_, 1);
}

void CatalogueTypist::TypeDog(const Psi& dog) {
    SetHeadingFont(10, false);
    word_.SetKeepWithNext(true);
    if (dog.Trida != lastClass_ || dog.PohlaviPes != lastMale_)
        TypeClassHeading(dog);
    TypeNameAndBirth(dog);
    if (withAwards_)
        TypeAwards(dog);
    TypeParentsAndPeople(dog);
}

void CatalogueTypist::TypeClassHeading(const Psi& dog) {
    word_.TypeText(dog.PohlaviPes ? u"   Pes - "_s : u"   Fena - "_s);
    word_.TypeText(dog.Trida == kIntermediateClass ? u"mezitřída "_s
                                                   : u"třída "_s + ClassNameOf(dog));
    lastClass_ = dog.Trida;
    lastMale_ = dog.PohlaviPes;
    TypeParagraphs(word_, 2);
}

void CatalogueTypist::TypeNameAndBirth(const Psi& dog) {
    word_.TypeText(NumberOf(dog) % u' ');
    word_.SetBold(FontSwitch::Off);
    word_.SetFontSize(9);
    word_.TypeText(FullNameOf(dog));
    TypeParagraphs(word_, 1);
    word_.TypeText(u"  nar. : " % BirthDateOf(dog) % u"\t  " % dog.PK);
}

void CatalogueTypist::TypeAwards(const Psi& dog) {
    TypeParagraphs(word_, 1);
    word_.TypeText(u"Ocenění :\t"_s + Under(rows_.awards, dog.ID).join(u", "_s));
}

void CatalogueTypist::TypeParentsAndPeople(const Psi& dog) {
    TypeParagraphs(word_, 1);
    word_.TypeText(u"  o. :\t" % dog.Otec % u"\tm. : " % dog.Matka);
    TypeParagraphs(word_, 1);
    word_.SetKeepWithNext(false);
    word_.TypeText(u"  ch. : \t" % dog.Chovatel % u"\tmaj. : ");
    if (const QString& owner = Under(rows_.owners, dog.MajitelID); !owner.isEmpty())
        word_.TypeText(owner);
    TypeParagraphs(word_, 2);
}

void CatalogueTypist::SetUpPage() {
    word_.HomeKeyStory();
    word_.WholeStory();
    word_.AddTextColumn(kColumnWidth, CentimetersToPoints(1.25));
    word_.AddTabStop(kFirstTabStop);
    word_.AddTabStop(kSecondTabStop);
    word_.SetZoomWholePage();
    word_.SetOrientation(PageOrientation::Landscape);
    word_.SetLeftMargin(CentimetersToPoints(1.5));
    word_.SetRightMargin(CentimetersToPoints(1.5));
    word_.HomeKeyStory();
}

void CatalogueTypist::SetHeadingFont(double size, bool underlined) {
    word_.SetFontName(u"Arial"_s);
    word_.SetUnderline(underlined);
    word_.SetBold(FontSwitch::On);
    word_.SetFontSize(size);
}

} // namespace

void TypeCatalogue(WordProcessor& word, bool withAwards) {
    CatalogueTypist(word, withAwards).Type();
}

} // namespace lorvo
