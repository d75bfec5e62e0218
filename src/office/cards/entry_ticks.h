#pragma once
// What a tick on the dog panel does: which other lines change, and the rows that are written.

#include "office/cards/card_line.h"

namespace lorvo {

/// The rules of one show per dog, applied after the clerk has ticked or unticked `position`. A
/// show just ticked unticks every other one; a line just unticked, of a show or of a competition,
/// is ticked again when no show remains ticked.
void ApplyShowRules(CheckLines& lines, int position);

/// Rewrites the competitions and then the show of a dog whole, as ticked, in one run: whatever
/// kills the program, the earlier ticks are there or the new ones. A statement that fails halfway
/// leaves what was written.
void WriteEntries(int psiID, const CheckLines& lines);

/// Rewrites the awards of a dog whole, as ticked, in the same way.
void WriteAwards(int psiID, const CheckLines& awards);

} // namespace lorvo
