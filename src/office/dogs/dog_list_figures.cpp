#include "office/dogs/dog_list_figures.h"

#include "store/psi_oceneni.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// One name is as a rule all, and is then shared by all dogs that have it.
QString Joined(const QStringList& names, const QString& between) {
    return names.size() == 1 ? names.front() : names.join(between);
}

} // namespace

QString AwardsText(const QStringList& names) {
    return Joined(names, u", "_s);
}

DogListTables::DogListTables() : awardsByDog_(AwardNamesByDog()) {}

DogListFigures DogListTables::Of(const DogListRow& dog) const {
    DogListFigures figures;
    figures.account = ledger_.Of(dog, kDogListRules);
    figures.shows = ShowNames(figures.account);
    figures.competitions = CompetitionNames(figures.account);
    if (const auto awards = awardsByDog_.find(dog.IDPsa); awards != awardsByDog_.end())
        figures.awards = AwardsText(awards->second);
    return figures;
}

QString DogListTables::ShowNames(const Account& account) const {
    QStringList names;
    for (const Account::Entry& show : account.shows)
        names << ledger_.ShowName(show.ID);
    return Joined(names, u" "_s);
}

QString DogListTables::CompetitionNames(const Account& account) const {
    QStringList names;
    for (const Account::Entry& competition : account.competitions)
        names << ledger_.CompetitionName(competition.ID);
    return Joined(names, u", "_s);
}

} // namespace lorvo
