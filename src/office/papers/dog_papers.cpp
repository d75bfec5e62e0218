#include "office/papers/dog_papers.h"

#include "app/common_routines.h"
#include "office/papers/report_texts.h"
#include "store/data_module.h"
#include "store/psi_lists.h"

namespace lorvo {

namespace {

template<class Row> const Row* RowByID(const std::unordered_map<int, Row>& rows, int ID) {
    const auto found = rows.find(ID);
    return found == rows.end() ? nullptr : &found->second;
}

} // namespace

const std::array<OwnerText, 4> kOwnerAddress = {{
    {"_majjmeno_",
     [](const Majitele& owner) {
         return owner.Jmeno;
     }},
    {"_majulice_",
     [](const Majitele& owner) {
         return owner.Ulice;
     }},
    {"_majmesto_",
     [](const Majitele& owner) {
         return owner.Mesto;
     }},
    {"_majpsc_",
     [](const Majitele& owner) {
         return PostCodeText(owner.PSC);
     }},
}};

DogPapers::DogPapers(std::vector<Psi> (*readDogs)()) {
    const ReadRun run(TheDataModule().Conn1);
    dogs_ = readDogs();
    breeds_ = BreedsByID();
    owners_ = OwnersByID();
}

std::vector<DogPaper> DogPapers::All() const {
    std::vector<DogPaper> papers;
    papers.reserve(dogs_.size());
    for (const Psi& dog : dogs_)
        papers.push_back({dog, RowByID(breeds_, dog.PlemenoID), RowByID(owners_, dog.MajitelID)});
    return papers;
}

std::vector<DogField> OwnerAddressFields() {
    std::vector<DogField> fields;
    for (const OwnerText& part : kOwnerAddress)
        fields.push_back({part.placeholder, [text = part.text](const DogPaper& paper) {
                              return paper.owner ? std::optional(ToCp1250(text(*paper.owner)))
                                                 : std::nullopt;
                          }});
    return fields;
}

void AppendDogPapers(QByteArray& output, const QByteArray& pattern, std::vector<DogField> fields,
                     RunProgress& progress) {
    const DogPapers papers(DogsByNumber);
    RowFiller<DogPaper> filler(pattern, std::move(fields));
    WalkRows(papers.All(), progress,
             [&](const DogPaper& paper) { filler.AppendTo(output, paper); });
}

QString CzechBreedOf(const DogPaper& paper) {
    return paper.breed ? paper.breed->Nazev : QString();
}

QString BreedOf(const DogPaper& paper) {
    return paper.breed ? BreedNameOf(*paper.breed) : QString();
}

QString OwnerOf(const DogPaper& paper) {
    return paper.owner ? paper.owner->Jmeno : QString();
}

} // namespace lorvo
