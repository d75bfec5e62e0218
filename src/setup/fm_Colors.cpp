#include "setup/fm_Colors.h"

#include "store/barvy.h"
#include "store/psi_lists.h"

namespace lorvo {

fm_Colors::fm_Colors(QWidget* parent)
    : CodeListForm(kColourTexts,
                   {[] { return CodeListRows(Colours()); }, CountDogsOfColour, CountColoursNamed,
                    InsertColour, RenameColour, DeleteColour},
                   parent) {}

} // namespace lorvo
