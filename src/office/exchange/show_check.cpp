#include "office/exchange/show_check.h"

#include "app/common_routines.h"
#include "office/fees/owner_accounts.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/majitele.h"
#include "store/meny.h"
#include "store/oceneni.h"
#include "store/plemena.h"
#include "store/psi_lists.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/upkeep.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"

#include <set>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

template<class Rows> std::set<int> IDsOf(const Rows& rows) {
    std::set<int> ids;
    for (const auto& row : rows)
        ids.insert(row.ID);
    return ids;
}

/// Counts rows that point nowhere, and says so when there are any.
class Lost {
  public:
    Lost(ShowCheck& check, QString sentence) : check_(check), sentence_(std::move(sentence)) {}
    ~Lost() {
        if (count_ > 0)
            check_.faults << sentence_ + u": "_s + QString::number(count_) + u'.';
    }
    Lost(const Lost&) = delete;
    Lost& operator=(const Lost&) = delete;

    void LookFor(int id, const std::set<int>& known) { count_ += known.contains(id) ? 0 : 1; }

  private:
    ShowCheck& check_;
    QString sentence_;
    int count_ = 0;
};

void LookAtDogs(ShowCheck& check, const std::vector<Psi>& dogs) {
    const std::set<int> owners = IDsOf(OwnersByName());
    std::set<int> breeds;
    for (const auto& [id, breed] : BreedsByID())
        breeds.insert(id);
    Lost withoutOwner(check, u"Psi, jejichž majitel v databázi není"_s);
    Lost withoutBreed(check, u"Psi, jejichž plemeno v databázi není"_s);
    for (const Psi& dog : dogs) {
        withoutOwner.LookFor(dog.MajitelID, owners);
        withoutBreed.LookFor(dog.PlemenoID, breeds);
    }
}

void LookAtBreeds(ShowCheck& check) {
    std::set<int> rings = IDsOf(Rings());
    rings.insert(0);
    Lost withoutRing(check, u"Plemena zařazená do kruhu, který v databázi není"_s);
    for (const auto& [id, breed] : BreedsByID())
        withoutRing.LookFor(breed.ID_Kruhu, rings);
}

/// Rows of a dog that tie it to something else.
void LookAtTies(ShowCheck& check, const LinkTable& ties, const std::set<int>& dogs,
                const std::set<int>& others, const QString& name) {
    Lost withoutDog(check, name + u" psů, kteří v databázi nejsou"_s);
    Lost withoutOther(check, name + u", které vedou k něčemu, co v databázi není"_s);
    for (const int dog : ties.Owners())
        for (const int id : ties.Of(dog)) {
            withoutDog.LookFor(dog, dogs);
            withoutOther.LookFor(id, others);
        }
}

/// An entry in a show that is gone, or a class without a fee, leaves the accounts unreckoned.
void LookAtAccounts(ShowCheck& check, Currency paid) {
    try {
        const OwnerAccounts accounts;
        Currency paidByOwners;
        for (const Majitele& owner : OwnersByName())
            paidByOwners += accounts.Of(owner.ID).paid;
        if (paid != paidByOwners)
            check.faults << u"V seznamu vystavovatelů je uhrazeno "_s + AmountText(paidByOwners) +
                                u", plateb je ale za "_s + AmountText(paid) + u'.';
    } catch (const DiskError&) {
        throw;
    } catch (const Error& failure) {
        check.faults << u"Poplatky vystavovatelů nejdou spočítat: "_s +
                            QString::fromUtf8(failure.what());
    }
}

void LookAtPayments(ShowCheck& check, const std::set<int>& dogs) {
    Lost withoutDog(check, u"Psi s platbou, kteří v databázi nejsou"_s);
    Currency paid;
    for (const auto& [dog, amount] : PaidByDog()) {
        withoutDog.LookFor(dog, dogs);
        paid += amount;
    }
    check.figures << u"Platby: "_s + QString::number(CountPayments()) + u", celkem "_s +
                         AmountText(paid);
    LookAtAccounts(check, paid);
}

} // namespace

ShowCheck CheckShow() {
    ShowCheck check;
    for (const QString& fault : IntegrityFaults())
        check.faults << u"Soubor je poškozený ("_s + fault + u")."_s;
    if (!check.IsWell())
        return check; // what a damaged file says of its rows is worth nothing
    const ReadRun run(TheDataModule().Conn1);
    const std::vector<Psi> dogs = DogsByName();
    const std::set<int> dogIDs = IDsOf(dogs);
    check.figures << u"Psi: "_s + QString::number(dogs.size());
    LookAtDogs(check, dogs);
    LookAtBreeds(check);
    LookAtTies(check, ShowLinks(), dogIDs, IDsOf(Shows()), u"Přihlášky na výstavy"_s);
    LookAtTies(check, CompetitionLinks(), dogIDs, IDsOf(Competitions()), u"Přihlášky do soutěží"_s);
    LookAtPayments(check, dogIDs);
    return check;
}

} // namespace lorvo
