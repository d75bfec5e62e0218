#include "office/cards/owner_card.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "office/fees/ledger.h"
#include "office/texts/dog_texts.h"
#include "office/texts/money_texts.h"
#include "office/tree/node_key.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "store/majitele.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Name of the first show the dog stands in, empty for none.
QString FirstShowName(const Account& account) {
    if (account.shows.empty())
        return {};
    const std::optional<Vystavy> show = ShowByID(account.shows.front().ID);
    return show ? show->Nazev : QString();
}

QString CompetitionNames(const Account& account, const std::vector<Souteze>& competitions) {
    QStringList names;
    for (const Souteze& competition : competitions)
        if (account.IsInCompetition(competition.ID))
            names << competition.Nazev;
    return names.join(u", "_s);
}

InkedText BalanceText(Currency balance) {
    return {PriceText(balance), BalanceColour(balance, kOverpaidOnOwnerCard)};
}

OwnerDogLine LineOf(const Psi& dog, const Account& account,
                    const std::vector<Souteze>& competitions) {
    OwnerDogLine line;
    line.key = NodeKey::Dog(dog.ID).ToText();
    line.tag = QString::number(dog.ID);
    line.name = {dog.Jmeno, SexColour(dog.PohlaviPes), SexText(dog.PohlaviPes).toLower()};
    line.show = FirstShowName(account);
    line.closing = ClosingText(dog.PrvniUzaverka);
    line.firstDog = dog.PrvniPes ? YesNo(true) : QString();
    line.competitions = CompetitionNames(account, competitions);
    // A dog in no show has no price in its line, though its competitions count in the balance.
    if (!account.shows.empty())
        line.price = PriceText(account.Owed());
    line.paid = PriceText(account.paid);
    line.balance = BalanceText(account.Balance());
    line.note = dog.Poznamka;
    return line;
}

} // namespace

void FillOwnerLines(OwnerCard& card, int ownerID) {
    const Majitele owner = ExistingOwner(ownerID);
    card.ID = ownerID;
    card.title = owner.Jmeno;
    card.Jmeno = owner.Jmeno;
    card.Ulice = owner.Ulice;
    card.PSC = PostCodeText(owner.PSC);
    card.Mesto = owner.Mesto;
    card.Telefon = owner.Telefon;
    card.Email = owner.Email;
}

void FillOwnerDogs(OwnerCard& card, int ownerID) {
    const ReadRun run(TheDataModule().Conn1);
    card.dogs.clear();
    AccountTotals totals;
    const std::vector<Souteze> competitions = CompetitionsByName();
    for (const Psi& dog : DogsOfOwner(ownerID)) {
        Module().CurrentDogID = dog.ID;
        const Account account = AccountOf(dog, kOwnerCardRules, competitions);
        card.dogs.push_back(LineOf(dog, account, competitions));
        totals.Add(account);
    }
    card.price = PriceText(totals.owed);
    card.paid = PriceText(totals.paid);
    card.balance = BalanceText(totals.Balance());
    card.dogCount = QString::number(card.dogs.size());
}

} // namespace lorvo
