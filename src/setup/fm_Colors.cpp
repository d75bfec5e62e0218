#include "setup/fm_Colors.h"

#include "store/barvy.h"
#include "store/psi_lists.h"

namespace lorvo {

namespace {

constexpr CodeListTexts kTexts = {
    .window = "fm_Colors",
    .list = "lvwColors",
    .toolBar = "tbrColors",
    .caption = u"Barvy",
    .usedHeading = u"Použita",
    .newName = u"Nová barva",
    .duplicate = u"Barva s tímto názvem již existuje!",
    .deleteQuestion = u"Skutečně smazat barvu?",
    .inUse = u"Tuto barvu není možno smazat, protože je použita (%1x)",
};

std::vector<CodeListRow> Rows() {
    std::vector<CodeListRow> rows;
    for (const Barvy& colour : Colours())
        rows.push_back({colour.ID, colour.Nazev});
    return rows;
}

} // namespace

fm_Colors::fm_Colors(QWidget* parent)
    : CodeListForm(
          kTexts,
          {Rows, CountDogsOfColour, CountColoursNamed, InsertColour, RenameColour, DeleteColour},
          parent) {}

} // namespace lorvo
