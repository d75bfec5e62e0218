#include "setup/frmOceneni.h"

#include "store/barvy.h"
#include "store/oceneni.h"
#include "store/psi_oceneni.h"

namespace lorvo {

namespace {

constexpr CodeListTexts kTexts = {
    .window = "frmOceneni",
    .list = "lvwOceneni",
    .toolBar = "tbrOceneni",
    .caption = u"Ocenění ve výstavních třídách",
    .usedHeading = u"Použito",
    .newName = u"Nové ocenění",
    .duplicate = u"Ocenění s tímto názvem již existuje!",
    .deleteQuestion = u"Skutečně smazat ocenění?",
    .inUse = u"Toto ocenění není možno smazat, protože je použito (%1x)",
};

std::vector<CodeListRow> Rows() {
    std::vector<CodeListRow> rows;
    for (const Oceneni& award : Awards())
        rows.push_back({award.ID, award.Nazev});
    return rows;
}

} // namespace

// Offices have come to rely on two things here: an award may not bear the name of a colour, but may
// bear that of another award; and a deletion takes the award's links alone, so that the award
// itself is back when the window opens again.
frmOceneni::frmOceneni(QWidget* parent)
    : CodeListForm(kTexts,
                   {Rows, CountDogsWithAward, CountColoursNamed, InsertAward, RenameAward,
                    DeleteAwardFromDogs},
                   parent) {}

} // namespace lorvo
