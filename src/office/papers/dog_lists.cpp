#include "office/papers/dog_lists.h"

#include "office/papers/document_typing.h"
#include "office/papers/report_texts.h"
#include "office/papers/run_progress.h"
#include "office/papers/template_engine.h"
#include "platform/values/cp1250.h"
#include "store/data_module.h"
#include "store/majitele.h"
#include "store/psi_lists.h"

#include <array>
#include <functional>
#include <optional>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using OwnerNamesByID = std::unordered_map<int, QString>;

struct DogGroup {
    QString heading;
    std::vector<Psi> dogs;
};

/// What a dog line ends with.
using Tail = std::function<QString(const Psi&)>;

/// A change of `key` from one dog to the next begins a new run, headed by `heading`.
struct DogRuns {
    std::vector<Psi> dogs;
    int (*key)(const Psi&);
    QString (*heading)(const Psi&);
};

/// All dogs by name, kept by what they belong to.
std::unordered_map<int, std::vector<Psi>> DogsBy(int Psi::*key) {
    std::unordered_map<int, std::vector<Psi>> dogs;
    for (Psi& dog : DogsByName())
        dogs[dog.*key].push_back(std::move(dog));
    return dogs;
}

std::vector<DogGroup> DogsInBreeds(QString (*heading)(const Plemena&)) {
    auto dogs = DogsBy(&Psi::PlemenoID);
    std::vector<DogGroup> groups;
    for (const Plemena& breed : UsedBreedsByName())
        groups.push_back({heading(breed), std::move(dogs[breed.ID])});
    return groups;
}

std::vector<DogGroup> DogsOfOwners() {
    auto dogs = DogsBy(&Psi::MajitelID);
    std::vector<DogGroup> groups;
    for (const Majitele& owner : OwnersByNameAndSurname())
        groups.push_back({owner.Jmeno, std::move(dogs[owner.ID])});
    return groups;
}

struct BreedRows {
    std::vector<DogGroup> groups;
    OwnerNamesByID owners;
};

BreedRows ReadBreedRows(QString (*heading)(const Plemena&)) {
    const ReadRun run(TheDataModule().Conn1);
    return {DogsInBreeds(heading), OwnerNames()};
}

QString NameOfOwner(const OwnerNamesByID& names, const Psi& dog) {
    const auto found = names.find(dog.MajitelID);
    return found == names.end() ? QString() : found->second;
}

class DogListTypist {
  public:
    DogListTypist(WordProcessor& word, RunProgress& progress, Tail tail)
        : word_(word), progress_(progress), tail_(std::move(tail)) {}

    /// Group after group, each with a gap behind it.
    void Type(const std::vector<DogGroup>& groups);
    /// Dog after dog, with a heading above each run and one gap at the end.
    void Type(const DogRuns& runs);

  private:
    bool TypeGroup(const DogGroup& group, int number, int groups);
    void TypeHeading(const QString& heading);
    void TypeDog(const Psi& dog);
    void TypeGap();

    WordProcessor& word_;
    RunProgress& progress_;
    Tail tail_;
};

void DogListTypist::Type(const std::vector<DogGroup>& groups) {
    int number = 0;
    for (const DogGroup& group : groups) {
        if (!TypeGroup(group, ++number, static_cast<int>(groups.size())))
            return;
        TypeGap();
    }
}

/// False when the clerk has asked to stop, which a large group answers too.
bool DogListTypist::TypeGroup(const DogGroup& group, int number, int groups) {
    if (!progress_.Advance(number, groups))
        return false;
    TypeHeading(group.heading);
    for (const Psi& dog : group.dogs) {
        if (!progress_.Advance(number, groups))
            return false;
        TypeDog(dog);
    }
    return true;
}

void DogListTypist::Type(const DogRuns& runs) {
    std::optional<int> last;
    WalkRows(runs.dogs, progress_, [&](const Psi& dog) {
        if (const int key = runs.key(dog); key != last) {
            TypeHeading(runs.heading(dog));
            last = key;
        }
        TypeDog(dog);
    });
    TypeGap();
}

void DogListTypist::TypeHeading(const QString& heading) {
    word_.SetBold(FontSwitch::On);
    word_.SetKeepWithNext(true);
    TypeLine(word_, heading);
    word_.SetKeepWithNext(false);
    word_.SetBold(FontSwitch::Off);
}

void DogListTypist::TypeDog(const Psi& dog) {
    TypeLine(word_, FullNameOf(dog) + u" - třída "_s + ClassNameOf(dog) + u" - datum narození "_s +
                        BirthDateOf(dog) + tail_(dog));
}

void DogListTypist::TypeGap() {
    word_.SetSelectionText(u"\r\n"_s);
    word_.SetSelectionText(u"\r\n"_s);
    word_.EndKeyStory();
}

void TypeByBreed(WordProcessor& word, RunProgress& progress) {
    const BreedRows rows = ReadBreedRows(BreedNameOf);
    const auto tail = [&](const Psi& dog) {
        return u" - majitel "_s + NameOfOwner(rows.owners, dog);
    };
    DogListTypist(word, progress, tail).Type(rows.groups);
}

template<class Rows> void TypeWithPedigrees(WordProcessor& word, RunProgress& progress, Rows rows) {
    const auto tail = [](const Psi& dog) {
        return u" - číslo PK "_s + dog.PK;
    };
    DogListTypist(word, progress, tail).Type(rows);
}

std::vector<DogGroup> ReadOwnerGroups() {
    const ReadRun run(TheDataModule().Conn1);
    return DogsOfOwners();
}

int SexKey(const Psi& dog) {
    return dog.PohlaviPes ? 1 : 0;
}

int ClassKey(const Psi& dog) {
    return dog.Trida;
}

} // namespace

void TypeDogList(WordProcessor& word, DogGrouping grouping, RunProgress& progress) {
    word.SetOrientation(PageOrientation::Landscape);
    switch (grouping) {
    case DogGrouping::ByBreed:
        TypeByBreed(word, progress);
        break;
    case DogGrouping::BySex:
        TypeWithPedigrees(word, progress, DogRuns{DogsBySex(), SexKey, SexOf});
        break;
    case DogGrouping::ByOwner:
        TypeWithPedigrees(word, progress, ReadOwnerGroups());
        break;
    case DogGrouping::ByClass:
        // kept: males-alone-by-class
        TypeWithPedigrees(word, progress, DogRuns{MalesByClass(), ClassKey, ClassNameOf});
        break;
    }
    word.HomeKeyStory();
}

// kept: groups-keep-their-markers
void AppendDogList(QByteArray& output, const QByteArray& pattern, RunProgress& progress) {
    const BreedRows rows = ReadBreedRows([](const Plemena& breed) { return breed.Nazev; });
    WalkRows(rows.groups, progress, [&](const DogGroup& group) {
        QByteArray text = pattern;
        text.replace("_skupina_", ToCp1250(group.heading));
        output += text;
        if (group.dogs.empty())
            return;
        const RowPattern row(TemplateSection(text, "__body__", "__body_end__"), {"_radek_"});
        std::array<std::optional<QByteArray>, 1> owner;
        for (const Psi& dog : group.dogs) {
            owner[0] = ToCp1250(NameOfOwner(rows.owners, dog));
            row.AppendTo(output, owner);
        }
    });
}

} // namespace lorvo
