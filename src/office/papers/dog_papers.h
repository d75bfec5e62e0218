#pragma once
// What the papers are made of that go one to a dog.

#include "office/papers/row_filler.h"
#include "office/papers/run_progress.h"
#include "store/majitele.h"
#include "store/plemena.h"
#include "store/psi.h"

#include <array>

namespace lorvo {

/// A dog with what belongs to it; a null pointer where the breed or the owner is gone.
struct DogPaper {
    const Psi& dog;
    const Plemena* breed;
    const Majitele* owner;
};

using DogField = RowField<DogPaper>;

/// The dogs in the order of a paper, with their breeds and owners, all read as of one moment.
class DogPapers {
  public:
    /// `readDogs` is the store's routine that reads them in their order. Raises StoreError.
    explicit DogPapers(std::vector<Psi> (*readDogs)());

    std::vector<DogPaper> All() const;

  private:
    std::vector<Psi> dogs_;
    std::unordered_map<int, Plemena> breeds_;
    std::unordered_map<int, Majitele> owners_;
};

/// A placeholder for a text of an owner.
struct OwnerText {
    const char* placeholder;
    QString (*text)(const Majitele&);
};

/// Name and address of an owner, in the order of replacement.
extern const std::array<OwnerText, 4> kOwnerAddress;

/// The owner's name and address; they stay in the text where the owner is gone.
std::vector<DogField> OwnerAddressFields();

/// Appends a filled copy of the pattern for every dog, by catalogue number, until the clerk stops.
/// Raises StoreError, and RangeError for a dog whose class is none of the table's.
void AppendDogPapers(QByteArray& output, const QByteArray& pattern, std::vector<DogField> fields,
                     RunProgress& progress);

/// Czech name of the dog's breed; empty when the breed is gone.
QString CzechBreedOf(const DogPaper& paper);
/// Name of the dog's breed, the original one where there is no Czech one; empty when it is gone.
QString BreedOf(const DogPaper& paper);
/// Name of the dog's owner; empty when the owner is gone.
QString OwnerOf(const DogPaper& paper);

} // namespace lorvo
