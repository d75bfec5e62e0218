#include "office/dogs/exhibitor_figures.h"

#include "store/psi_ve_vystavach.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"

#include <algorithm>

namespace lorvo {

ExhibitorTables::ExhibitorTables()
    : dogs_(DogFeeRows()), showsByDog_(ShowsByDog()), competitionsByDog_(CompetitionsByDog()),
      paidByDog_(PaidByDog()) {
    std::ranges::stable_sort(dogs_, {}, &DogFeeRow::MajitelID);
    for (const Souteze& competition : Competitions())
        prices_.emplace(competition.ID, competition.Cena.value_or(Currency()));
    for (auto& [psiID, competitions] : competitionsByDog_) {
        std::ranges::sort(competitions);
        const auto repeated = std::ranges::unique(competitions);
        competitions.erase(repeated.begin(), repeated.end());
    }
}

ExhibitorFigures ExhibitorTables::Of(int majitelID) const {
    ExhibitorFigures figures;
    for (const DogFeeRow& dog :
         std::ranges::equal_range(dogs_, majitelID, {}, &DogFeeRow::MajitelID))
        AddDog(dog, figures);
    return figures;
}

void ExhibitorTables::AddDog(const DogFeeRow& dog, ExhibitorFigures& figures) const {
    ++figures.dogs;
    if (const auto paid = paidByDog_.find(dog.ID); paid != paidByDog_.end())
        figures.paid += paid->second;
    if (const auto shows = showsByDog_.find(dog.ID); shows != showsByDog_.end())
        for (const int vystavaID : shows->second)
            figures.fees += fees_.Fee(vystavaID, dog.PrvniUzaverka, dog.Trida, dog.PrvniPes);
    figures.fees += CompetitionFees(dog.ID);
}

Currency ExhibitorTables::CompetitionFees(int psiID) const {
    Currency sum;
    const auto entered = competitionsByDog_.find(psiID);
    if (entered == competitionsByDog_.end())
        return sum;
    for (const int soutezID : entered->second)
        if (const auto price = prices_.find(soutezID); price != prices_.end())
            sum += price->second;
    return sum;
}

} // namespace lorvo
