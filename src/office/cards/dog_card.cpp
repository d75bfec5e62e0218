#include "office/cards/dog_card.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "office/fees/ledger.h"
#include "office/texts/dog_texts.h"
#include "office/texts/money_texts.h"
#include "office/tree/node_key.h"
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
#include "store/vystavy.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The sub-items of a show's line; a competition has the price alone.
enum SubItem { kPrice, kClosing, kFirstDog };

std::string SortKey(const QString& name) {
    return CzechKey(name);
}

CheckLine& ExistingLine(CheckLines& lines, const QString& key) {
    CheckLine* line = FindLine(lines, key);
    if (!line)
        throw Error("V seznamu na panelu psa není řádek " + key.toStdString() + ".");
    return *line;
}

void FillAwards(DogCard& card, int psiID) {
    card.awards.clear();
    for (const Oceneni& award : Awards()) {
        CheckLine line;
        line.key = u"C%1"_s.arg(award.ID);
        line.text = award.Nazev;
        card.awards.push_back(std::move(line));
    }
    for (const int awardID : AwardsOfDog(psiID))
        ExistingLine(card.awards, u"C%1"_s.arg(awardID)).checked = true;
}

void FillOrigin(DogCard& card, const Psi& dog) {
    card.PlemenoID = dog.PlemenoID;
    card.title = FullName(dog);
    card.Plemeno = BreedName(ExistingBreed(dog.PlemenoID));
    card.Pohlavi = {SexText(dog.PohlaviPes), SexColour(dog.PohlaviPes)};
    card.DatumNar = DateOrEmpty(dog.DatumNar);
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
        line.key = u"V%1"_s.arg(show.ID);
        line.icon = LineIcon::Show;
        line.text = show.Nazev;
        card.shows.push_back(std::move(line));
    }
}

QString FeeText(std::optional<Currency> fee) {
    return WithMainCurrency(fee ? PlainAmount(*fee) : QString());
}

void TickEnteredShows(DogCard& card, const Psi& dog) {
    for (const int showID : ShowsOfDog(dog.ID)) {
        CheckLine& line = ExistingLine(card.shows, u"V%1"_s.arg(showID));
        line.subItems[kPrice].text = FeeText(FeeOf(dog, showID, kDogCardRules.fees));
        line.checked = true;
    }
}

void FillEnteredShows(DogCard& card, const Psi& dog) {
    for (CheckLine& line : card.shows) {
        if (!line.checked)
            continue;
        line.subItems[kClosing].text = ClosingText(dog.PrvniUzaverka) + u". uzávěrka"_s;
        line.subItems[kFirstDog].text = YesNo(dog.PrvniPes);
    }
}

void FillOtherShows(DogCard& card, const Psi& dog) {
    for (const int showID : ShowsOfOtherDogs(dog.ID)) {
        CheckLine& line = ExistingLine(card.shows, u"V%1"_s.arg(showID));
        if (line.checked)
            continue;
        line.subItems[kPrice] = {FeeText(FeeOf(dog, showID, FeeClassRule::AsStored)),
                                 kIdlePriceColour};
    }
}

void AddCompetitionLines(DogCard& card, const std::vector<Souteze>& competitions,
                         const Account& account) {
    for (const Souteze& competition : competitions) {
        CheckLine line;
        line.key = u"k%1"_s.arg(competition.ID);
        line.tag = QString::number(competition.ID);
        line.icon = LineIcon::Competition;
        line.text = competition.Nazev;
        line.subItems[kPrice].text = PriceText(PriceOf(competition));
        line.checked = account.IsInCompetition(competition.ID);
        if (!line.checked)
            line.subItems[kPrice].colour = kIdlePriceColour;
        card.shows.push_back(std::move(line));
    }
}

void FillBalance(DogCard& card, Currency balance) {
    const std::optional<QColor> colour = BalanceColour(balance, kOverpaidOnDogCard);
    card.Rozdil = {AmountText(balance), colour};
    card.balanceWord = {QString(), colour};
    if (balance.IsNegative())
        card.balanceWord.text = u"Nedoplatek"_s;
    else if (!balance.IsZero())
        card.balanceWord.text = u"Přeplatek"_s;
}

void FillNeighbours(DogCard& card, int ownerID) {
    card.previous = {};
    card.next = {};
    const std::string title = SortKey(card.title);
    // The last dog before this one is its neighbour, and of those behind it the last one that bears
    // the first of their names.
    std::optional<QString> nextName;
    for (const Psi& dog : DogsOfOwner(ownerID)) {
        const std::string name = SortKey(FullName(dog));
        if (name < title) {
            card.previous = {NodeKey::Dog(dog.ID).ToText(), FullName(dog)};
        } else if (name > title && dog.Jmeno == nextName.value_or(dog.Jmeno)) {
            nextName = dog.Jmeno;
            card.next = {NodeKey::Dog(dog.ID).ToText(), FullName(dog)};
        }
    }
}

void FillMoney(DogCard& card, const Psi& dog) {
    // What was paid and ticked stays on show where a fee that nobody has filled fails in the sums.
    card.Uhrazeno = AmountText(PaidForDog(dog.ID));
    TickEnteredShows(card, dog);
    const std::vector<Souteze> competitions = CompetitionsByName();
    const Account account = AccountOf(dog, kDogCardRules, competitions);
    FillEnteredShows(card, dog);
    FillOtherShows(card, dog);
    AddCompetitionLines(card, competitions, account);
    card.Uzaverka = dog.PrvniUzaverka ? u"První"_s : u"Druhá"_s;
    FillBalance(card, account.Balance());
    card.PrvniPes = YesNo(dog.PrvniPes);
    card.CenaCelkem = AmountText(account.Owed());
}

} // namespace

void FillDogCard(DogCard& card, int psiID) {
    const ReadRun run(TheDataModule().Conn1);
    card.ID = Module().CurrentDogID = psiID;
    FillAwards(card, psiID);
    const Psi dog = ExistingDog(psiID);
    FillOrigin(card, dog);
    FillOwner(card, dog.MajitelID);
    card.Trida = ClassName(dog.Trida, ClassNamesOf(ClassListOf(dog.PlemenoID)), dog.Jmeno);
    AddShowLines(card);
    FillMoney(card, dog);
    FillNeighbours(card, dog.MajitelID);
}

} // namespace lorvo
