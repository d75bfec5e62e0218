#include "setup/frmOceneni.h"

#include "store/barvy.h"
#include "store/oceneni.h"
#include "store/psi_oceneni.h"

namespace lorvo {

// Two things are meant so: an award may not bear the name of a colour, but may bear that of another
// award; and a deletion takes the award's links alone, so that the award itself is back when the
// window opens again.
// kept: awards-among-colours
// kept: deleted-award-comes-back
frmOceneni::frmOceneni(QWidget* parent)
    : CodeListForm(kAwardTexts,
                   {[] { return CodeListRows(Awards()); }, CountDogsWithAward, CountColoursNamed,
                    InsertAward, RenameAward, DeleteAwardFromDogs},
                   parent) {}

} // namespace lorvo
