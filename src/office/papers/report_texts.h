#pragma once
// What papers print of a dog or a breed: the words of all windows, asked for by row.

#include "store/plemena.h"
#include "store/psi.h"

#include <QString>

namespace lorvo {

/// Name of the dog's class, from the table of ordinary classes whatever the breed. RangeError that
/// names the dog when its class is not one of the table's.
QString ClassNameOf(const Psi& dog);
QString FullNameOf(const Psi& dog);
QString NumberOf(const Psi& dog);
QString BirthDateOf(const Psi& dog);
QString SexOf(const Psi& dog);
QString BreedNameOf(const Plemena& breed);

} // namespace lorvo
