#pragma once
// Texts that several papers print of a dog or a breed.

#include "store/plemena.h"
#include "store/psi.h"

#include <QString>

namespace lorvo {

/// Name of the dog's class, from the table of ordinary classes. RangeError that names the dog when
/// its class is not one of the table's.
QString ClassNameOf(const Psi& dog);
/// Name and kennel, with a blank between them even where one is missing.
QString FullNameOf(const Psi& dog);
/// Catalogue number; empty when the dog has none yet.
QString NumberOf(const Psi& dog);
/// Date of birth as the locale writes it; empty when it is not known.
QString BirthDateOf(const Psi& dog);
/// "Pes" or "Fena".
QString SexOf(const Psi& dog);
/// Czech name of the breed, or the original one where there is none.
QString BreedNameOf(const Plemena& breed);

} // namespace lorvo
