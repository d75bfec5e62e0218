#pragma once
// Texts as they are compared where spelling may differ: without accents, letter case and doubled
// blanks.

#include <QString>

namespace lorvo {

/// "  Německý  OVČÁK" gives "nemecky ovcak". Signs between words become single blanks.
QString FoldedText(const QString& text);

} // namespace lorvo
