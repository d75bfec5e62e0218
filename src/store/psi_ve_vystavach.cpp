#include "store/psi_ve_vystavach.h"

#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsPsiVeVystavach;
}

/// The lowest show above `vystavaID` in which any dog stands; nullopt when there is none.
std::optional<int> NextShowWithDogs(int vystavaID) {
    return ToOptionalInt(
        ReadScalar(Table(), "SELECT MIN(VystavaID) FROM PsiVeVystavach WHERE VystavaID > " +
                                Number(vystavaID)));
}

bool HasOtherDog(int vystavaID, int psiID) {
    return ReadFirst(Table(),
                     "SELECT TOP 1 PesID FROM PsiVeVystavach WHERE VystavaID = " +
                         Number(vystavaID) + " AND PesID <> " + Number(psiID),
                     [](const RecordSet& row) { return row.Field(0).ToInt(); })
        .has_value();
}

} // namespace

std::vector<int> ShowsOfDog(int psiID) {
    return ReadNumbers("SELECT VystavaID FROM PsiVeVystavach WHERE PesID = " + Number(psiID));
}

std::vector<int> ShowsOfOtherDogs(int psiID) {
    // Steps from show to show through the index: there are few shows and many thousand rows.
    std::vector<int> shows;
    for (auto show = NextShowWithDogs(0); show; show = NextShowWithDogs(*show)) {
        if (HasOtherDog(*show, psiID))
            shows.push_back(*show);
    }
    return shows;
}

int CountDogsInShow(int vystavaID) {
    return ReadCount(Table(),
                     "SELECT COUNT (*) FROM PsiVeVystavach WHERE VystavaID = " + Number(vystavaID));
}

LinkTable ShowLinks() {
    return ReadLinks("SELECT PesID, VystavaID FROM PsiVeVystavach");
}

void AddDogToShows(int psiID, const std::vector<int>& vystavaIDs) {
    InsertLinks(Table(), "PsiVeVystavach", "PesID", psiID, "VystavaID", vystavaIDs);
}

void DeleteShowsOfDog(int psiID) {
    DeleteRows(Table(), "PsiVeVystavach", "PesID", psiID);
}

void DeleteAllShowEntries() {
    DeleteAllRows(Table(), "PsiVeVystavach");
}

} // namespace lorvo
