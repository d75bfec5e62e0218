// Entries as a table that can be taken in again.

#include "app/constant_tables.h"
#include "office/exchange/entry_fields.h"
#include "office/exchange/office_lists.h"
#include "office/texts/dog_texts.h"
#include "store/majitele.h"
#include "store/plemena.h"
#include "store/psi_lists.h"
#include "store/psi_ve_vystavach.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// What the dogs' rows refer to, read once.
struct References {
    std::unordered_map<int, Majitele> owners = OwnersByID();
    std::unordered_map<int, Plemena> breeds = BreedsByID();
    LinkTable showsByDog = ShowLinks();
    LinkTable competitionsByDog = CompetitionLinks();
    std::unordered_map<int, Currency> paid = PaidByDog();
    std::unordered_map<int, QString> shows;
    std::unordered_map<int, QString> competitions;

    References() {
        for (const Vystavy& show : Shows())
            shows.emplace(show.ID, show.Nazev);
        for (const Souteze& competition : Competitions())
            competitions.emplace(competition.ID, competition.Nazev);
    }
};

QString Names(std::span<const int> ids, const std::unordered_map<int, QString>& names) {
    QStringList found;
    for (const int id : ids)
        if (const auto name = names.find(id); name != names.end())
            found << name->second;
    return found.join(u"; "_s);
}

/// Empty for a class that the breed doesn't have.
QString ClassOrEmpty(const Psi& dog) {
    const TextTable& names = ClassNamesOf(ClassListOf(dog.PlemenoID));
    const auto at = static_cast<std::size_t>(dog.Trida - 1);
    return dog.Trida >= 1 && at < names.size() ? names[at] : QString();
}

class EntryRow {
  public:
    EntryRow() : cells_(kEntryFields) {}

    void Set(EntryField field, TableCell cell) {
        cells_[static_cast<std::size_t>(field)] = std::move(cell);
    }
    TableRow Cells() && { return std::move(cells_); }

  private:
    TableRow cells_;
};

void SetDog(EntryRow& row, const Psi& dog, References& known) {
    const Plemena& breed = known.breeds[dog.PlemenoID];
    row.Set(EntryField::DogName, dog.Jmeno);
    row.Set(EntryField::Kennel, dog.ChovnaStanice);
    row.Set(EntryField::Breed, BreedName(breed));
    row.Set(EntryField::Sex, dog.PohlaviPes ? u"pes"_s : u"fena"_s);
    row.Set(EntryField::Born, DayCell(dog.DatumNar));
    row.Set(EntryField::Class, ClassOrEmpty(dog));
    row.Set(EntryField::Father, dog.Otec);
    row.Set(EntryField::Mother, dog.Matka);
    row.Set(EntryField::Breeder, dog.Chovatel);
    row.Set(EntryField::StudBook, dog.PK);
    row.Set(EntryField::Note, dog.Poznamka);
}

void SetOwner(EntryRow& row, const Majitele& owner) {
    row.Set(EntryField::OwnerName, owner.Jmeno);
    row.Set(EntryField::OwnerSurname, owner.Prijmeni.value_or(QString()));
    row.Set(EntryField::Street, owner.Ulice);
    row.Set(EntryField::PostCode,
            owner.PSC == 0 ? TableCell() : QString::number(owner.PSC).rightJustified(5, u'0'));
    row.Set(EntryField::Town, owner.Mesto);
    row.Set(EntryField::Country, owner.Stat.value_or(QString()));
    row.Set(EntryField::Telephone, owner.Telefon);
    row.Set(EntryField::Email, owner.Email);
}

void SetEntries(EntryRow& row, const Psi& dog, References& known) {
    const QString shows = Names(known.showsByDog.Of(dog.ID), known.shows);
    row.Set(EntryField::Show, shows.isEmpty() ? u"žádná"_s : shows);
    row.Set(EntryField::Closing, ClosingText(dog.PrvniUzaverka));
    row.Set(EntryField::FirstDog, YesNo(dog.PrvniPes));
    row.Set(EntryField::Competitions,
            Names(known.competitionsByDog.Of(dog.ID), known.competitions));
    if (const auto paid = known.paid.find(dog.ID); paid != known.paid.end())
        row.Set(EntryField::Paid, paid->second);
}

} // namespace

ListTable EntryTable() {
    ListTable table;
    table.title = u"Přihlášky"_s;
    table.headings = EntryHeadings();
    References known;
    for (const Psi& dog : DogsByNumber()) {
        EntryRow row;
        SetDog(row, dog, known);
        SetOwner(row, known.owners[dog.MajitelID]);
        SetEntries(row, dog, known);
        table.rows.push_back(std::move(row).Cells());
    }
    return table;
}

} // namespace lorvo
