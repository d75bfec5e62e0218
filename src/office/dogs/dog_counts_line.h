#pragma once
// The line below the dog list that counts dogs and bitches.

#include <QString>

namespace lorvo {

/// "V seznamu  je 1 pes a 2 feny, celkem 3.", declined as the counts ask for.
QString DogCountsLine(int males, int females);

} // namespace lorvo
