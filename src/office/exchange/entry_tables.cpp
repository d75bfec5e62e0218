#include "office/exchange/entry_tables.h"

#include "office/exchange/folded_text.h"
#include "store/kruhy.h"
#include "store/ostatni.h"
#include "store/plemena.h"
#include "store/souteze.h"
#include "store/vystavy.h"

namespace lorvo {

namespace {

/// As the tree has it: any breed of a ring that is there, and breeds in use outside rings.
bool HasPlaceInTree(const Plemena& breed, const std::set<int>& rings) {
    return breed.ID_Kruhu == 0 ? breed.Pouzivat : rings.contains(breed.ID_Kruhu);
}

void ReadBreeds(EntryTables& tables) {
    std::set<int> rings;
    for (const Kruhy& ring : Rings())
        rings.insert(ring.ID);
    for (const auto& [id, breed] : BreedsByID()) {
        if (HasPlaceInTree(breed, rings))
            tables.judgedBreeds.insert(id);
        const QString czech = FoldedText(breed.Nazev);
        const QString original = FoldedText(breed.NazevOrig);
        tables.breedsByName.emplace(czech, id);
        if (original != czech)
            tables.breedsByName.emplace(original, id);
    }
    tables.breedsByName.erase(QString());
}

void ReadShows(EntryTables& tables) {
    const std::vector<Vystavy> shows = Shows();
    for (const Vystavy& show : shows)
        tables.shows.emplace(FoldedText(show.Nazev), show.ID);
    if (shows.empty())
        return;
    tables.firstClosing = shows.front().Uzaverka1;
    tables.secondClosing = shows.front().Uzaverka2;
}

} // namespace

QString WholeName(const Majitele& owner) {
    return (owner.Jmeno + u' ' + owner.Prijmeni.value_or(QString())).trimmed();
}

EntryTables::EntryTables(int show, DateValue day) : vystavaID(show), today(day) {
    ReadBreeds(*this);
    ReadShows(*this);
    for (Majitele& owner : OwnersByName()) {
        const QString name = FoldedText(WholeName(owner));
        ownersByName.emplace(name, std::move(owner));
    }
    if (const auto values = ShowWideValues())
        showDay = values->DatumVystavy.value_or(DateValue());
    for (const Souteze& competition : Competitions())
        competitions.emplace(FoldedText(competition.Nazev), competition.ID);
}

} // namespace lorvo
