#include "store/vazby_souteze.h"

#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsVazby_Souteze;
}

} // namespace

std::vector<int> CompetitionsOfDog(int psiID) {
    return ReadNumbers("SELECT ID_Souteze FROM Vazby_Souteze WHERE ID_Psa = " + Number(psiID));
}

int CountDogsInCompetition(int soutezID) {
    return ReadCount(Table(),
                     "SELECT COUNT(*) FROM Vazby_Souteze WHERE ID_Souteze = " + Number(soutezID));
}

LinkTable CompetitionLinks() {
    return ReadLinks("SELECT ID_Psa, ID_Souteze FROM Vazby_Souteze");
}

void AddDogToCompetitions(int psiID, const std::vector<int>& soutezIDs) {
    InsertLinks(Table(), "Vazby_Souteze", "ID_Psa", psiID, "ID_Souteze", soutezIDs);
}

void AddDogsToCompetition(int soutezID, const std::vector<int>& psiIDs) {
    InsertLinks(Table(), "Vazby_Souteze", "ID_Souteze", soutezID, "ID_Psa", psiIDs);
}

void DeleteCompetitionsOfDog(int psiID) {
    DeleteRows(Table(), "Vazby_Souteze", "ID_Psa", psiID);
}

void DeleteDogsOfCompetition(int soutezID) {
    DeleteRows(Table(), "Vazby_Souteze", "ID_Souteze", soutezID);
}

void DeleteAllCompetitionEntries() {
    DeleteAllRows(Table(), "Vazby_Souteze");
}

} // namespace lorvo
