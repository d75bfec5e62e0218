#include "office/papers/breed_overview.h"

#include "office/papers/document_typing.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "store/plemena.h"
#include "store/psi_lists.h"

#include <array>
#include <cstdint>
#include <limits>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGroups = 11;
/// The last group stands for breeds that are in none.
constexpr int kUnassignedGroup = 11;

/// A whole number of 16 bits.
class Count {
  public:
    void Add(int number) {
        if (number > std::numeric_limits<std::int16_t>::max() - value_)
            throw RangeError("Přehled plemen umí počítat jen do " +
                             std::to_string(std::numeric_limits<std::int16_t>::max()) + ".");
        value_ = static_cast<std::int16_t>(value_ + number);
    }
    int Value() const { return value_; }

  private:
    std::int16_t value_ = 0;
};

struct GroupCounts {
    Count breeds;
    Count dogs;
};

std::array<GroupCounts, kGroups> CountGroups() {
    const ReadRun run(TheDataModule().Conn1);
    auto dogCounts = DogCountsByBreed();
    std::array<GroupCounts, kGroups> groups;
    for (int group = 1; group <= kGroups; ++group) {
        GroupCounts& counts = groups[static_cast<std::size_t>(group - 1)];
        for (const Plemena& breed : UsedBreedsOfFci(group)) {
            counts.breeds.Add(1);
            counts.dogs.Add(dogCounts[breed.ID]);
        }
    }
    return groups;
}

void TypeTitle(WordProcessor& word, const QString& title) {
    word.SetFontName(u"Arial"_s);
    word.SetKeepWithNext(true);
    word.SetFontSize(14);
    word.SetBold(FontSwitch::On);
    word.SetAlignment(ParagraphAlignment::Center);
    word.SetUnderline(true);
    TypeLine(word, title, 2);
    word.SetAlignment(ParagraphAlignment::Left);
    word.SetItalic(true);
    word.SetUnderline(false);
    TypeLine(word, u"Přehled plemen :"_s, 2);
    word.SetFontSize(10);
    word.SetBold(FontSwitch::Off);
    word.SetItalic(false);
}

QString GroupHeading(int group) {
    return u"FCI "_s + (group == kUnassignedGroup ? u"nezařazeno"_s : QString::number(group));
}

QString CountText(const char16_t* caption, const Count& count) {
    return QString::fromUtf16(caption) + u"\t\t"_s + QString::number(count.Value());
}

void TypeGroup(WordProcessor& word, int group, const GroupCounts& counts) {
    word.SetKeepWithNext(true);
    TypeLine(word, GroupHeading(group));
    TypeLine(word, CountText(u"\tPočet plemen:", counts.breeds));
    word.SetKeepWithNext(false);
    TypeLine(word, CountText(u"\tPočet psů:", counts.dogs), 2);
}

} // namespace

void TypeBreedOverview(WordProcessor& word, const QString& title) {
    word.SetOrientation(PageOrientation::Portrait);
    TypeTitle(word, title);
    GroupCounts total;
    int group = 0;
    for (const GroupCounts& counts : CountGroups()) {
        TypeGroup(word, ++group, counts);
        total.breeds.Add(counts.breeds.Value());
        total.dogs.Add(counts.dogs.Value());
    }
    TypeLine(word, CountText(u"Celkem psů:", total.dogs));
    word.TypeText(CountText(u"Celkem plemen:", total.breeds));
    word.HomeKeyStory();
}

} // namespace lorvo
