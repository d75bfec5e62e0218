#include "dogs/dog_filter_choices.h"

#include "office/texts/dog_texts.h"
#include "store/kruhy.h"
#include "store/oceneni.h"
#include "store/plemena.h"
#include "store/souteze.h"
#include "store/vystavy.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

void AddClasses(std::vector<ReportRow>& rows, const QString& letters, const TextTable& names) {
    for (std::size_t i = 0; i < names.size(); ++i)
        if (!names[i].isEmpty())
            rows.push_back({letters + QString::number(i + 1), {}, {{names[i]}}});
}

template<class Records>
void AddRecords(std::vector<ReportRow>& rows, QChar letter, const Records& records) {
    for (const auto& record : records)
        rows.push_back({letter + QString::number(record.ID), {}, {{record.Nazev}}});
}

} // namespace

std::vector<ReportRow> ClassChoices() {
    std::vector<ReportRow> rows;
    AddClasses(rows, u"CNO"_s, ClassNamesOf(ClassList::Special));
    AddClasses(rows, u"C"_s, ClassNamesOf(ClassList::Standard));
    return rows;
}

std::vector<ReportRow> RingChoices() {
    std::vector<ReportRow> rows;
    AddRecords(rows, u'K', RingsByName());
    return rows;
}

std::vector<ReportRow> BreedChoices() {
    std::vector<ReportRow> rows;
    for (const Plemena& breed : UsedBreedsByName())
        rows.push_back({u'R' + QString::number(breed.ID),
                        breed.Vlastni ? kOwnBreedTag : QString(),
                        {{breed.Nazev}, {breed.NazevOrig}}});
    return rows;
}

std::vector<ReportRow> ShowChoices() {
    std::vector<ReportRow> rows;
    AddRecords(rows, u'V', Shows());
    AddRecords(rows, u'S', Competitions());
    return rows;
}

std::vector<ReportRow> AwardChoices() {
    std::vector<ReportRow> rows;
    AddRecords(rows, u'C', Awards());
    return rows;
}

} // namespace lorvo
