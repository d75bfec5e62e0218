#include "office/exchange/office_lists.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "office/dogs/dog_list_figures.h"
#include "office/fees/owner_accounts.h"
#include "office/payments/payment_lookups.h"
#include "office/texts/dog_texts.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/majitele.h"
#include "store/plemena.h"
#include "store/uhrady.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// A table with a totals row that begins with the word for it.
ListTable Begun(OfficeList list, QStringList headings) {
    ListTable table;
    table.title = QString::fromUtf16(kOfficeLists[static_cast<std::size_t>(list)].title);
    table.headings = std::move(headings);
    return table;
}

void BeginTotals(ListTable& table) {
    table.totals.resize(static_cast<std::size_t>(table.headings.size()));
    table.totals.front() = u"Celkem"_s;
}

QString InMainCurrency(const QString& heading) {
    return heading + u" ("_s + Module().MainCurrency + u')';
}

TableRow DogRow(const DogListRow& dog, const DogListFigures& figures) {
    const Account& account = figures.account;
    const std::optional<Currency> fee = account.LastFee();
    return {FullName(dog),
            SexText(dog.PohlaviPes),
            dog.JmenoMajitele,
            BreedName(dog.NazevPlemene, dog.NazevOrig),
            dog.Poznamka,
            figures.shows,
            ClosingText(dog.PrvniUzaverka),
            fee ? TableCell(*fee) : TableCell(),
            figures.competitions,
            account.CompetitionFees(),
            figures.awards,
            account.paid,
            account.Balance()};
}

TableRow ExhibitorRow(const Majitele& owner, const AccountTotals& figures) {
    return {owner.Jmeno,
            owner.Ulice,
            owner.Mesto,
            PostCodeText(owner.PSC),
            owner.Stat.value_or(QString()),
            owner.Telefon,
            owner.Email,
            figures.dogs,
            figures.owed,
            figures.paid,
            figures.Balance()};
}

QString RingName(int kruhID) {
    const auto ring = RingByID(kruhID);
    return ring ? ring->Nazev : QString();
}

} // namespace

ListTable ReadOfficeList(OfficeList list) {
    const ReadRun run(TheDataModule().Conn1);
    switch (list) {
    case OfficeList::Dogs:
        return DogTable();
    case OfficeList::Exhibitors:
        return ExhibitorTable();
    case OfficeList::Payments:
        return PaymentTable();
    case OfficeList::Parents:
        return ParentTable();
    case OfficeList::Breeds:
        return BreedTable();
    case OfficeList::Entries:
        return EntryTable();
    }
    return {};
}

ListTable DogTable() {
    ListTable table = Begun(OfficeList::Dogs,
                            {u"Jméno"_s, u"Pohlaví"_s, u"Majitel"_s, u"Plemeno"_s, u"Poznámka"_s,
                             u"Výstava"_s, u"Uzávěrka"_s, InMainCurrency(u"Cena"_s), u"Soutěže"_s,
                             InMainCurrency(u"Cena soutěží"_s), u"Ocenění"_s,
                             InMainCurrency(u"Uhrazeno"_s), InMainCurrency(u"Bilance"_s)});
    const DogListTables tables;
    AccountTotals sums;
    for (const DogListRow& dog : DogsWithOwnersByName()) {
        const DogListFigures figures = tables.Of(dog);
        sums.Add(figures.account);
        table.rows.push_back(DogRow(dog, figures));
    }
    BeginTotals(table);
    table.totals[11] = sums.paid;
    table.totals[12] = sums.Balance();
    return table;
}

ListTable ExhibitorTable() {
    ListTable table = Begun(OfficeList::Exhibitors,
                            {u"Jméno"_s, u"Ulice"_s, u"Město"_s, u"PSČ"_s, u"Stát"_s, u"Telefon"_s,
                             u"Email"_s, u"Psů"_s, InMainCurrency(u"Poplatky celkem"_s),
                             InMainCurrency(u"Zaplaceno"_s), InMainCurrency(u"Bilance"_s)});
    const OwnerAccounts accounts;
    AccountTotals sums;
    for (const Majitele& owner : OwnersByName()) {
        const AccountTotals figures = accounts.Of(owner.ID);
        sums.Add(figures);
        table.rows.push_back(ExhibitorRow(owner, figures));
    }
    BeginTotals(table);
    table.totals[7] = sums.dogs;
    table.totals[8] = sums.owed;
    table.totals[9] = sums.paid;
    table.totals[10] = sums.Balance();
    return table;
}

ListTable PaymentTable() {
    ListTable table =
        Begun(OfficeList::Payments,
              {u"Jméno"_s, u"Jméno psa"_s, u"Datum"_s, InMainCurrency(u"Částka"_s), u"Vytištěno"_s,
               u"Způsob úhrady"_s, u"Číslo účtu"_s, u"Zaplaceno"_s, u"Měna"_s});
    const CurrencyAbbreviations currencies;
    Currency sum;
    for (const PaymentRow& payment : PaymentsWithOwners()) {
        sum += payment.Kc;
        table.rows.push_back({payment.MajX, payment.Jmeno, DayCell(payment.Datum), payment.Kc,
                              YesNo(payment.Printed), PaymentModeText(payment.Uhrada), payment.Ucet,
                              payment.Castka, currencies.Of(payment.Mena)});
    }
    BeginTotals(table);
    table.totals[3] = sum;
    return table;
}

ListTable ParentTable() {
    ListTable table = Begun(OfficeList::Parents, {u"Jméno"_s, u"Rodič"_s});
    for (const QString& name : DistinctFathers())
        if (!name.isEmpty())
            table.rows.push_back({name, u"otec"_s});
    for (const QString& name : DistinctMothers())
        if (!name.isEmpty())
            table.rows.push_back({name, u"matka"_s});
    return table;
}

ListTable BreedTable() {
    ListTable table = Begun(OfficeList::Breeds, {u"Plemeno"_s, u"Původní název"_s, u"Skupina FCI"_s,
                                                 u"Kruh"_s, u"Psů"_s});
    auto counts = DogCountsByBreed();
    int dogs = 0;
    for (const Plemena& breed : UsedBreedsByName()) {
        table.rows.push_back(
            {breed.Nazev, breed.NazevOrig, breed.FCI, RingName(breed.ID_Kruhu), counts[breed.ID]});
        dogs += counts[breed.ID];
    }
    BeginTotals(table);
    table.totals[4] = dogs;
    return table;
}

} // namespace lorvo
