#include "office/cards/dog_card.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "office/fees/entry_fee.h"
#include "office/tree/node_key.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "store/czech_order.h"
#include "store/data_module.h"
#include "store/majitele.h"
#include "store/oceneni.h"
#include "store/plemena.h"
#include "store/psi.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"

#include <algorithm>

namespace lorvo {

namespace {

constexpr QColor kOverpaidColour(0, 192, 0);

/// The sub-items of a show's line; a competition has the price alone.
enum SubItem { kPrice, kClosing, kFirstDog };

QString WithCurrency(const QString& amount) {
    return amount + u' ' + Module().MainCurrency;
}

QString YesNo(bool yes) {
    return yes ? QStringLiteral("Ano") : QStringLiteral("Ne");
}

QString FullName(const Psi& dog) {
    return dog.Jmeno + u' ' + dog.ChovnaStanice;
}

std::string SortKey(const QString& name) {
    return CzechKey(name.toStdString());
}

CheckLine& ExistingLine(CheckLines& lines, const QString& key) {
    CheckLine* line = FindLine(lines, key);
    if (!line)
        throw Error("V seznamu na panelu psa není řádek " + key.toStdString() + ".");
    return *line;
}

Psi ExistingDog(int psiID) {
    std::optional<Psi> dog = DogByID(psiID);
    if (!dog)
        throw StoreError("V tabulce Psi není řádek s číslem " + std::to_string(psiID) + ".");
    return *std::move(dog);
}

QString BreedName(int breedID) {
    const std::optional<Plemena> breed = BreedByID(breedID);
    if (!breed)
        throw StoreError("V tabulce Plemena není řádek s číslem " + std::to_string(breedID) + ".");
    return breed->Nazev.isEmpty() ? breed->NazevOrig : breed->Nazev;
}

QString ClassName(int trida) {
    const TextTable& names =
        Module().SpecialBreed ? Module().SpecialClassNames : Module().ClassNames;
    if (trida < 1 || trida > kTableSlots)
        throw RangeError("Třída " + std::to_string(trida) + " není v tabulce tříd.");
    return names[static_cast<std::size_t>(trida - 1)];
}

void FillAwards(DogCard& card, int psiID) {
    card.awards.clear();
    for (const Oceneni& award : Awards()) {
        CheckLine line;
        line.key = QStringLiteral("C%1").arg(award.ID);
        line.text = award.Nazev;
        card.awards.push_back(std::move(line));
    }
    for (const int awardID : AwardsOfDog(psiID))
        ExistingLine(card.awards, QStringLiteral("C%1").arg(awardID)).checked = true;
}

void FillOrigin(DogCard& card, const Psi& dog) {
    card.PlemenoID = dog.PlemenoID;
    card.title = FullName(dog);
    card.Plemeno = BreedName(dog.PlemenoID);
    card.Pohlavi = {dog.PohlaviPes ? QStringLiteral("Pes") : QStringLiteral("Fena"),
                    SexColour(dog.PohlaviPes)};
    card.DatumNar = dog.DatumNar ? ThePlatform().locale->DateText(*dog.DatumNar) : QString();
    card.Poznamka = dog.Poznamka;
    card.ChovnaStanice = dog.ChovnaStanice;
    card.PK = dog.PK;
    card.Otec = dog.Otec;
    card.Matka = dog.Matka;
    card.Chovatel = dog.Chovatel;
}

// Country, phone and e-mail are not blanked: a dog without an owner leaves those of the dog before.
void FillOwner(DogCard& card, int ownerID) {
    card.JmenoMajitele.clear();
    card.Ulice.clear();
    card.PSC.clear();
    card.Mesto.clear();
    card.MajitelID = ownerID;
    Module().CurrentOwner = ownerID;
    const std::optional<Majitele> owner = OwnerByID(ownerID);
    if (!owner)
        return;
    card.JmenoMajitele = owner->Jmeno;
    card.Ulice = owner->Ulice;
    card.PSC = PostCodeText(owner->PSC);
    card.Mesto = owner->Mesto;
    card.Stat = owner->Stat.value_or(QString());
    card.Telefon = owner->Telefon;
    card.Email = owner->Email;
}

void AddShowLines(DogCard& card) {
    card.shows.clear();
    for (const Vystavy& show : Shows()) {
        CheckLine line;
        line.key = QStringLiteral("V%1").arg(show.ID);
        line.icon = LineIcon::Show;
        line.text = show.Nazev;
        card.shows.push_back(std::move(line));
    }
}

/// The fee of the dog in a show; nullopt when the show's table doesn't have it filled.
std::optional<Currency> FeeOf(const Psi& dog, int showID, FeeClassRule rule) {
    const FeeDog feeDog{dog.Trida, dog.PrvniUzaverka, dog.PrvniPes,
                        dog.PlemenoID == kSpecialBreedID};
    return FindShowFee(showID,
                       FeeColumn(dog.PrvniUzaverka, FeeClassColumn(feeDog, rule), dog.PrvniPes));
}

/// What the dog owes and what was paid for it.
struct Account {
    Currency paid;
    std::vector<Currency> showFees; ///< a fee for each show entered
    Currency competitions;          ///< sum of their prices

    Currency LastFee() const { return showFees.empty() ? Currency() : showFees.back(); }
    Currency Balance() const { return LastShowBalance(paid, showFees, competitions); }
};

void FillEnteredShows(DogCard& card, const Psi& dog, Account& account) {
    for (const int showID : ShowsOfDog(dog.ID)) {
        const std::optional<Currency> fee = FeeOf(dog, showID, FeeClassRule::SpecialBreedColumns);
        CheckLine& line = ExistingLine(card.shows, QStringLiteral("V%1").arg(showID));
        line.subItems[kPrice].text = WithCurrency(fee ? PlainAmount(*fee) : QString());
        line.checked = true;
        if (!fee)
            throw StoreError("Výstava " + line.text.toStdString() + " nemá vyplněný poplatek.");
        account.showFees.push_back(*fee);
        card.Rozdil.text = AmountText(account.Balance());
        line.subItems[kClosing].text =
            dog.PrvniUzaverka ? QStringLiteral("I. uzávěrka") : QStringLiteral("II. uzávěrka");
        line.subItems[kFirstDog].text = YesNo(dog.PrvniPes);
    }
}

void FillOtherShows(DogCard& card, const Psi& dog) {
    for (const int showID : ShowsOfOtherDogs(dog.ID)) {
        CheckLine& line = ExistingLine(card.shows, QStringLiteral("V%1").arg(showID));
        if (line.checked)
            continue;
        const std::optional<Currency> fee = FeeOf(dog, showID, FeeClassRule::AsStored);
        line.subItems[kPrice] = {WithCurrency(fee ? PlainAmount(*fee) : QString()),
                                 kIdlePriceColour};
    }
}

void AddCompetitionLines(DogCard& card, int psiID, Account& account) {
    const std::vector<int> entered = CompetitionsOfDog(psiID);
    for (const Souteze& competition : CompetitionsByName()) {
        const Currency price = competition.Cena.value_or(Currency());
        CheckLine line;
        line.key = QStringLiteral("k%1").arg(competition.ID);
        line.tag = QString::number(competition.ID);
        line.icon = LineIcon::Competition;
        line.text = competition.Nazev;
        line.subItems[kPrice].text = WithCurrency(PlainAmount(price));
        line.checked = std::find(entered.begin(), entered.end(), competition.ID) != entered.end();
        if (line.checked)
            account.competitions += price;
        else
            line.subItems[kPrice].colour = kIdlePriceColour;
        card.shows.push_back(std::move(line));
    }
}

void FillBalance(DogCard& card, Currency balance) {
    const std::optional<QColor> colour = BalanceColour(balance, kOverpaidColour);
    card.Rozdil = {AmountText(balance), colour};
    card.balanceWord = {QString(), colour};
    if (balance.IsNegative())
        card.balanceWord.text = QStringLiteral("Nedoplatek");
    else if (!balance.IsZero())
        card.balanceWord.text = QStringLiteral("Přeplatek");
}

void FillNeighbours(DogCard& card, int ownerID) {
    card.previous = {};
    card.next = {};
    const std::string title = SortKey(card.title);
    // Each walk comes nearer to this dog, so that the last dog on its side is the neighbour.
    for (const Psi& dog : DogsOfOwner(ownerID))
        if (SortKey(FullName(dog)) < title)
            card.previous = {NodeKey::Dog(dog.ID).ToText(), FullName(dog)};
    for (const Psi& dog : DogsOfOwner(ownerID, DogOrder::ByNameDescending))
        if (SortKey(FullName(dog)) > title)
            card.next = {NodeKey::Dog(dog.ID).ToText(), FullName(dog)};
}

void FillMoney(DogCard& card, const Psi& dog, Account& account) {
    card.Uhrazeno = AmountText(account.paid);
    card.Rozdil.colour.reset();
    FillEnteredShows(card, dog, account);
    FillOtherShows(card, dog);
    AddCompetitionLines(card, dog.ID, account);
    card.Uzaverka = dog.PrvniUzaverka ? QStringLiteral("První") : QStringLiteral("Druhá");
    FillBalance(card, account.Balance());
    card.PrvniPes = YesNo(dog.PrvniPes);
    card.CenaCelkem = AmountText(account.LastFee() + account.competitions);
}

} // namespace

void FillDogCard(DogCard& card, int psiID) {
    const ReadRun run(TheDataModule().Conn1);
    card.ID = Module().CurrentDogID = psiID;
    FillAwards(card, psiID);
    Account account;
    account.paid = PaidForDog(psiID);
    const Psi dog = ExistingDog(psiID);
    FillOrigin(card, dog);
    FillOwner(card, dog.MajitelID);
    Module().SpecialBreed = dog.PlemenoID == kSpecialBreedID;
    card.Trida = ClassName(dog.Trida);
    AddShowLines(card);
    FillMoney(card, dog, account);
    FillNeighbours(card, dog.MajitelID);
}

} // namespace lorvo
