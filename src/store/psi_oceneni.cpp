#include "store/psi_oceneni.h"

#include "store/rows.h"

namespace lorvo {

namespace {

constexpr const char* kAwardNames =
    "SELECT PsiOceneni.IDPsa, PsiOceneni.IDOceneni, Oceneni.ID, Oceneni.Nazev FROM PsiOceneni, "
    "Oceneni WHERE ";
constexpr const char* kJoined = "PsiOceneni.IDOceneni = Oceneni.ID";

RecordSet& Table() {
    return TheDataModule().rsPsiOceneni;
}

std::string OfDog(int psiID, int oceneniID) {
    return "FROM PsiOceneni WHERE IDPsa = " + Number(psiID) + " AND IDOceneni=" + Number(oceneniID);
}

} // namespace

std::vector<int> AwardsOfDog(int psiID) {
    return ReadNumbers("SELECT IDOceneni FROM PsiOceneni WHERE IDPsa = " + Number(psiID));
}

QStringList AwardNamesOfDog(int psiID) {
    QStringList names;
    Query query(TheDataModule().Conn1, std::string(kAwardNames) + "PsiOceneni.IDPsa = " +
                                           Number(psiID) + " AND " + kJoined);
    while (query.Next())
        names << query.Text(3);
    return names;
}

std::unordered_map<int, QStringList> AwardNamesByDog() {
    std::unordered_map<int, QStringList> names;
    Query query(TheDataModule().Conn1, std::string(kAwardNames) + kJoined);
    while (query.Next())
        names[query.Int(0)] << query.Text(3);
    return names;
}

int CountAwardOfDog(int psiID, int oceneniID) {
    return ReadCount(Table(), "SELECT COUNT(*) " + OfDog(psiID, oceneniID));
}

int CountDogsWithAward(int oceneniID) {
    return ReadCount(Table(),
                     "SELECT COUNT (*) FROM PsiOceneni WHERE IDOceneni = " + Number(oceneniID));
}

void AddAwardsToDog(int psiID, const std::vector<int>& oceneniIDs) {
    InsertLinks(Table(), "PsiOceneni", "IDPsa", psiID, "IDOceneni", oceneniIDs);
}

void DeleteAwardsOfDog(int psiID) {
    DeleteRows(Table(), "PsiOceneni", "IDPsa", psiID);
}

void DeleteAwardOfDog(int psiID, int oceneniID) {
    Table().Open("DELETE * " + OfDog(psiID, oceneniID));
}

void DeleteAwardFromDogs(int oceneniID) {
    DeleteRows(Table(), "PsiOceneni", "IDOceneni", oceneniID);
}

void DeleteAllAwardsOfDogs() {
    DeleteAllRows(Table(), "PsiOceneni");
}

} // namespace lorvo
