#pragma once
// How what is known of a dog is put into words, in every window and paper alike.

#include "app/constant_tables.h"
#include "office/dogs/class_eligibility.h"
#include "platform/values/date_value.h"

#include <QString>
#include <optional>

namespace lorvo {

/// Name and kennel, with a blank between them even where one is missing.
QString FullName(const QString& jmeno, const QString& chovnaStanice);
/// The same of a row that has both fields.
template<class Dog> QString FullName(const Dog& dog) {
    return FullName(dog.Jmeno, dog.ChovnaStanice);
}

/// "Pes" or "Fena".
QString SexText(bool male);
/// Name of the dog's class in one of the two tables. RangeError that names the dog when the table
/// has no such slot.
const QString& ClassName(int trida, const TextTable& names, const QString& jmeno);
/// The table of class names of a list; that of the ordinary one as the office has renamed it.
const TextTable& ClassNamesOf(ClassList list);
/// The class list that a breed has.
ClassList ClassListOf(int plemenoID);
/// "I" or "II".
QString ClosingText(bool first);
/// "Ano" or "Ne".
QString YesNo(bool yes);
/// A date as the locale writes it; empty when it is not known.
QString DateOrEmpty(const std::optional<DateValue>& date);
/// A catalogue number; empty for a dog that has none yet.
QString NumberOrEmpty(const std::optional<int>& cislo);

/// Czech name of a breed, or the original one where there is none.
const QString& BreedName(const QString& nazev, const QString& nazevOrig);
/// The same of a row that has both fields.
template<class Breed> const QString& BreedName(const Breed& breed) {
    return BreedName(breed.Nazev, breed.NazevOrig);
}
/// What stands for the ring or the FCI group of a breed that is in none.
QString UnassignedText();

} // namespace lorvo
