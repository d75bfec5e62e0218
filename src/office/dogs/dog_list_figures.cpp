#include "office/dogs/dog_list_figures.h"

#include "platform/values/errors.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"

namespace lorvo {

namespace {

/// What a table holds for the dog; an empty value when it holds nothing.
template<class T> const T& Rows(const std::unordered_map<int, T>& byDog, int psiID) {
    static const T nothing{};
    const auto found = byDog.find(psiID);
    return found == byDog.end() ? nothing : found->second;
}

/// One name is as a rule all, and is then shared by all dogs that have it.
QString Joined(const QStringList& names, const QString& between) {
    return names.size() == 1 ? names.front() : names.join(between);
}

Currency PriceOf(const Souteze& competition) {
    if (competition.Cena)
        return *competition.Cena;
    throw StoreError("Tabulka Souteze: pole Cena není u soutěže s ID " +
                     std::to_string(competition.ID) + " vyplněno.");
}

} // namespace

QString AwardsText(const QStringList& names) {
    return Joined(names, QStringLiteral(", "));
}

DogListTables::DogListTables()
    : showsByDog_(ShowsByDog()), competitionsByDog_(CompetitionsByDog()),
      awardsByDog_(AwardNamesByDog()), paidByDog_(PaidByDog()) {
    for (Souteze& competition : Competitions())
        competitions_.emplace(competition.ID, std::move(competition));
}

DogListFigures DogListTables::Of(const DogListRow& dog) const {
    DogListFigures figures;
    figures.paid = Rows(paidByDog_, dog.IDPsa);
    figures.awards = AwardsText(Rows(awardsByDog_, dog.IDPsa));
    AddShows(dog, figures);
    AddCompetitions(dog.IDPsa, figures);
    return figures;
}

void DogListTables::AddShows(const DogListRow& dog, DogListFigures& figures) const {
    QStringList names;
    for (const int vystavaID : Rows(showsByDog_, dog.IDPsa)) {
        figures.lastFee = fees_.Fee(vystavaID, dog.PrvniUzaverka, dog.Trida, dog.PrvniPes);
        figures.fees += *figures.lastFee;
        names << fees_.ShowName(vystavaID);
    }
    figures.shows = Joined(names, QStringLiteral(" "));
}

void DogListTables::AddCompetitions(int psiID, DogListFigures& figures) const {
    QStringList names;
    for (const int soutezID : Rows(competitionsByDog_, psiID)) {
        const auto competition = competitions_.find(soutezID);
        if (competition == competitions_.end())
            continue;
        figures.competitionFees += PriceOf(competition->second);
        names << competition->second.Nazev;
    }
    figures.fees += figures.competitionFees;
    figures.competitions = Joined(names, QStringLiteral(", "));
}

} // namespace lorvo
