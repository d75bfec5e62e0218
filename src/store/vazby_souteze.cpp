#include "store/vazby_souteze.h"

#include "store/data_module.h"
#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsVazby_Souteze;
}

} // namespace

std::vector<int> CompetitionsOfDog(int psiID) {
    return ReadNumbers(Table(),
                       "SELECT ID_Souteze FROM Vazby_Souteze WHERE ID_Psa = " + Number(psiID));
}

bool IsDogInCompetition(int psiID, int soutezID) {
    return ReadCount(Table(), "SELECT COUNT (*) FROM Vazby_Souteze WHERE ID_Psa = " +
                                  Number(psiID) + " AND ID_Souteze = " + Number(soutezID)) > 0;
}

void AddDogToCompetitions(int psiID, const std::vector<int>& soutezIDs) {
    InsertLinks(Table(), "Vazby_Souteze", "ID_Psa", psiID, "ID_Souteze", soutezIDs);
}

void DeleteCompetitionsOfDog(int psiID) {
    DeleteRows(Table(), "Vazby_Souteze", "ID_Psa", psiID);
}

} // namespace lorvo
