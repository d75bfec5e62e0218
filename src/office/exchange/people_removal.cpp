#include "office/exchange/people_removal.h"

#include "store/data_module.h"
#include "store/majitele.h"
#include "store/psi_lists.h"
#include "store/uhrady.h"
#include "store/upkeep.h"
#include "store/whole_run.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

Majitele WithoutPerson(const Majitele& owner) {
    Majitele nobody;
    nobody.ID = owner.ID;
    nobody.Jmeno = u"Vystavovatel "_s + QString::number(owner.ID);
    nobody.Prijmeni = QString();
    nobody.Stat = owner.Stat;
    return nobody;
}

bool HasPersonalData(const Psi& dog) {
    return !dog.Chovatel.isEmpty() || !dog.Poznamka.isEmpty();
}

} // namespace

PeopleCounts CountPeople() {
    const ReadRun run(TheDataModule().Conn1);
    PeopleCounts counts;
    counts.owners = static_cast<int>(OwnersByName().size());
    for (const Psi& dog : DogsByName()) {
        counts.breeders += dog.Chovatel.isEmpty() ? 0 : 1;
        counts.notes += dog.Poznamka.isEmpty() ? 0 : 1;
    }
    counts.accounts = CountPaymentsWithAccount();
    return counts;
}

QStringList RemovalSentences(const PeopleCounts& counts) {
    const auto number = [](int count) {
        return QString::number(count);
    };
    return {
        u"Vystavovatelé: jména se nahradí čísly, adresy, telefony a e-maily se vymažou ("_s +
            number(counts.owners) + u")."_s,
        u"Chovatelé u psů se vymažou ("_s + number(counts.breeders) + u")."_s,
        u"Poznámky u psů se vymažou ("_s + number(counts.notes) + u")."_s,
        u"Čísla účtů u plateb se vymažou ("_s + number(counts.accounts) + u")."_s,
        u"Zůstanou psi, třídy, katalogová čísla, poplatky, platby, jejich součty a státy vystavovatelů."_s,
        u"Kopie ve složce Zálohy, papíry ve složce Tisky a stránky ve složce Šablony údaje osob "
        u"obsahují dál; smažte je, až nebudou potřeba."_s};
}

void RemovePeople() {
    WholeRun run(TheDataModule().Conn1);
    for (const Majitele& owner : OwnersByName())
        UpdateOwner(WithoutPerson(owner));
    for (Psi& dog : DogsByName()) {
        if (!HasPersonalData(dog))
            continue;
        dog.Chovatel.clear();
        dog.Poznamka.clear();
        UpdateDog(dog);
    }
    EmptyAccounts();
    run.Finish();
    WriteFileAnew();
}

} // namespace lorvo
