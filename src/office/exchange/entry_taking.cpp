#include "office/exchange/entry_taking.h"

#include "office/dogs/dog_list_figures.h"
#include "office/exchange/entry_tables.h"
#include "store/data_module.h"
#include "store/meny.h"
#include "store/psi_ve_vystavach.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/whole_run.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class Taking {
  public:
    explicit Taking(DateValue today) : today_(today) {
        const std::vector<Meny> main = MainCurrencies();
        mainCurrency_ = main.empty() ? 0 : main.front().ID;
    }

    void Take(const NewEntry& entry) {
        Psi dog = entry.dog;
        dog.MajitelID = OwnerOf(entry);
        dog.ID = InsertDog(dog);
        MarkIfFirst(dog, entry.firstDog);
        Enter(dog.ID, entry);
        Book(dog.ID, entry.paid);
        taken_.insert(dog.ID);
        ++report_.dogs;
    }

    TakingReport Report() {
        const DogListTables tables;
        for (const DogListRow& dog : DogsWithOwnersByName())
            if (taken_.contains(dog.IDPsa))
                report_.fees += tables.Of(dog).account.Owed();
        return report_;
    }

  private:
    int OwnerOf(const NewEntry& entry) {
        if (entry.dog.MajitelID != 0)
            return entry.dog.MajitelID;
        int& id = newOwners_[{WholeName(entry.owner), entry.owner.Ulice, entry.owner.Mesto,
                              entry.owner.PSC}];
        if (id == 0) {
            id = InsertOwner(entry.owner);
            ++report_.newOwners;
        }
        return id;
    }

    static void MarkIfFirst(const Psi& dog, std::optional<bool> told) {
        if (told.value_or(false))
            ClearFirstDogs(dog.MajitelID);
        if (told ? *told : CountDogsOfOwner(dog.MajitelID) == 1)
            MarkFirstDog(dog.ID);
    }

    void Enter(int psiID, const NewEntry& entry) {
        AddDogToShows(psiID, entry.shows);
        AddDogToCompetitions(psiID, entry.competitions);
        report_.entries += static_cast<int>(entry.shows.size() + entry.competitions.size());
    }

    void Book(int psiID, Currency paid) {
        if (paid.IsZero())
            return;
        Uhrady payment;
        payment.ID_Psa = psiID;
        payment.Datum = today_;
        payment.Castka = payment.Kc = paid;
        payment.Mena = mainCurrency_;
        payment.Kurs = Currency::FromUnits(1);
        InsertPayment(payment);
        ++report_.payments;
        report_.paid += paid;
    }

    DateValue today_;
    int mainCurrency_ = 0;
    /// By name, street, town and post code.
    std::map<std::tuple<QString, QString, QString, int>, int> newOwners_;
    std::set<int> taken_;
    TakingReport report_;
};

} // namespace

TakingReport TakeEntries(const std::vector<EntryLine>& lines,
                         const std::function<bool(const EntryLine&)>& IsTaken, DateValue today) {
    WholeRun run(TheDataModule().Conn1);
    Taking taking(today);
    for (const EntryLine& line : lines)
        if (line.canBeTaken && IsTaken(line))
            taking.Take(line.entry);
    const TakingReport report = taking.Report();
    run.Finish();
    return report;
}

std::vector<QStringList> RestOfTable(const QStringList& headings,
                                     const std::vector<EntryLine>& lines,
                                     const std::function<bool(const EntryLine&)>& IsTaken) {
    const auto width = static_cast<qsizetype>(headings.size());
    std::vector<QStringList> rows = {headings + QStringList(u"Důvod"_s)};
    for (const EntryLine& line : lines) {
        if (line.canBeTaken && IsTaken(line))
            continue;
        QStringList row = line.cells;
        while (row.size() < width)
            row << QString();
        rows.push_back(row << line.reasons.join(u' '));
    }
    return rows;
}

} // namespace lorvo
