#include "office/cards/entry_ticks.h"

#include "store/data_module.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/vazby_souteze.h"

#include <algorithm>

namespace lorvo {

namespace {

bool IsTicked(const CheckLine& line, LineIcon icon) {
    return line.checked && line.icon == icon;
}

std::vector<int> TickedIDs(const CheckLines& lines, LineIcon icon) {
    std::vector<int> ids;
    for (const CheckLine& line : lines)
        if (IsTicked(line, icon))
            ids.push_back(line.ID());
    return ids;
}

} // namespace

// kept: last-show-stays-ticked
void ApplyShowRules(CheckLines& lines, int position) {
    CheckLine& changed = lines[static_cast<std::size_t>(position)];
    if (IsTicked(changed, LineIcon::Show)) {
        for (CheckLine& line : lines)
            if (line.icon == LineIcon::Show && &line != &changed)
                line.checked = false;
    }
    const bool inShow = std::any_of(lines.begin(), lines.end(), [](const CheckLine& line) {
        return IsTicked(line, LineIcon::Show);
    });
    if (!changed.checked && !inShow)
        changed.checked = true;
}

void WriteEntries(int psiID, const CheckLines& lines) {
    EditRun run(TheDataModule().Conn1);
    DeleteCompetitionsOfDog(psiID);
    AddDogToCompetitions(psiID, TickedIDs(lines, LineIcon::Competition));
    DeleteShowsOfDog(psiID);
    AddDogToShows(psiID, TickedIDs(lines, LineIcon::Show));
    run.Finish();
}

void WriteAwards(int psiID, const CheckLines& awards) {
    EditRun run(TheDataModule().Conn1);
    DeleteAwardsOfDog(psiID);
    AddAwardsToDog(psiID, TickedIDs(awards, LineIcon::None));
    run.Finish();
}

} // namespace lorvo
