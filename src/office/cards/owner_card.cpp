#include "office/cards/owner_card.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "office/fees/entry_fee.h"
#include "office/tree/node_key.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "store/majitele.h"
#include "store/psi.h"
#include "store/psi_ve_vystavach.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"

#include <algorithm>

namespace lorvo {

namespace {

constexpr QColor kOverpaidColour(0, 255, 0);

QString Price(Currency amount) {
    return PlainAmount(amount) + u' ' + Module().MainCurrency;
}

struct Totals {
    Currency price;
    Currency paid;
};

/// Name of the first show the dog stands in, empty for none.
QString ShowName(const std::vector<int>& shows) {
    if (shows.empty())
        return {};
    const std::optional<Vystavy> show = ShowByID(shows.front());
    return show ? show->Nazev : QString();
}

/// Adds the dog's competitions to its line; returns the sum of their prices.
Currency FillCompetitions(OwnerDogLine& line, int psiID, const std::vector<Souteze>& all) {
    const std::vector<int> entered = CompetitionsOfDog(psiID);
    Currency sum;
    QStringList names;
    for (const Souteze& competition : all) {
        if (std::find(entered.begin(), entered.end(), competition.ID) == entered.end())
            continue;
        sum += competition.Cena.value_or(Currency());
        names << competition.Nazev;
    }
    line.competitions = names.join(QStringLiteral(", "));
    return sum;
}

// The class goes into the fee column as it stands, in the special breed too. A dog in no show has
// no price in its line, though its competitions count in the balance.
Currency FillShowPrices(OwnerDogLine& line, const Psi& dog, const std::vector<int>& shows,
                        Currency price) {
    for (const int showID : shows) {
        price += ShowFee(showID, FeeColumn(dog.PrvniUzaverka, dog.Trida, dog.PrvniPes));
        line.price = Price(price);
    }
    return price;
}

OwnerDogLine LineOf(const Psi& dog, const std::vector<Souteze>& competitions, Totals& totals) {
    OwnerDogLine line;
    line.key = NodeKey::Dog(dog.ID).ToText();
    line.tag = QString::number(dog.ID);
    line.name = {dog.Jmeno, SexColour(dog.PohlaviPes)};
    const std::vector<int> shows = ShowsOfDog(dog.ID);
    line.show = ShowName(shows);
    line.closing = dog.PrvniUzaverka ? QStringLiteral("I") : QStringLiteral("II");
    line.firstDog = dog.PrvniPes ? QStringLiteral("Ano") : QString();
    const Currency price =
        FillShowPrices(line, dog, shows, FillCompetitions(line, dog.ID, competitions));
    const Currency paid = PaidForDog(dog.ID);
    line.paid = Price(paid);
    line.balance = {Price(paid - price), BalanceColour(paid - price, kOverpaidColour)};
    line.note = dog.Poznamka;
    totals.price += price;
    totals.paid += paid;
    return line;
}

} // namespace

void FillOwnerLines(OwnerCard& card, int ownerID) {
    const std::optional<Majitele> owner = OwnerByID(ownerID);
    if (!owner)
        throw StoreError("V tabulce Majitele není řádek s číslem " + std::to_string(ownerID) + ".");
    card.ID = ownerID;
    card.title = owner->Jmeno;
    card.Jmeno = owner->Jmeno;
    card.Ulice = owner->Ulice;
    card.PSC = PostCodeText(owner->PSC);
    card.Mesto = owner->Mesto;
    card.Telefon = owner->Telefon;
    card.Email = owner->Email;
}

void FillOwnerDogs(OwnerCard& card, int ownerID) {
    const ReadRun run(TheDataModule().Conn1);
    card.dogs.clear();
    Totals totals;
    const std::vector<Souteze> competitions = CompetitionsByName();
    for (const Psi& dog : DogsOfOwner(ownerID)) {
        Module().CurrentDogID = dog.ID;
        card.dogs.push_back(LineOf(dog, competitions, totals));
    }
    const Currency balance = totals.paid - totals.price;
    card.price = Price(totals.price);
    card.paid = Price(totals.paid);
    card.balance = {Price(balance), BalanceColour(balance, kOverpaidColour)};
    card.dogCount = QString::number(card.dogs.size());
}

} // namespace lorvo
