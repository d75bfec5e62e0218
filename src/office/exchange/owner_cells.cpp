#include "office/exchange/entry_reading.h"
#include "office/exchange/folded_text.h"
#include "office/texts/post_code.h"
#include "store/text_width.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Whether name, town and post code are the same and the streets don't speak against it.
bool IsSameOwner(const Majitele& one, const Majitele& other) {
    const bool streetsAgree =
        one.Ulice == other.Ulice || one.Ulice.isEmpty() || other.Ulice.isEmpty();
    return WholeName(one) == WholeName(other) && one.Mesto == other.Mesto && one.PSC == other.PSC &&
           streetsAgree;
}

struct OwnerPlace {
    EntryField field;
    QString Majitele::*place;
};
const OwnerPlace kOwnerTexts[] = {{EntryField::OwnerName, &Majitele::Jmeno},
                                  {EntryField::Street, &Majitele::Ulice},
                                  {EntryField::Town, &Majitele::Mesto},
                                  {EntryField::Telephone, &Majitele::Telefon},
                                  {EntryField::Email, &Majitele::Email}};

void ReadOwnerTexts(EntryReading& reading) {
    Majitele& owner = reading.line.entry.owner;
    for (const auto& [field, place] : kOwnerTexts)
        owner.*place = reading.Text(field, kLongestText);
    owner.Prijmeni = reading.Text(EntryField::OwnerSurname, kLongestText);
    if (const QString country = reading.Text(EntryField::Country, kLongestText); !country.isEmpty())
        owner.Stat = country;
    const QString postCode = reading.Text(EntryField::PostCode);
    if (const auto number = PostCodeFromText(postCode))
        owner.PSC = *number;
    else
        reading.Refuse(u"PSČ "_s + InQuotes(postCode) + u" nemá pět číslic."_s);
}

/// A like name that isn't the same owner is for the clerk to look at.
void FindOwner(EntryReading& reading, const EntryTables& tables) {
    const Majitele& owner = reading.line.entry.owner;
    std::vector<int> same;
    QStringList elsewhere;
    const auto [first, last] = tables.ownersByName.equal_range(FoldedText(WholeName(owner)));
    for (auto known = first; known != last; ++known) {
        if (IsSameOwner(known->second, owner))
            same.push_back(known->second.ID);
        else
            elsewhere << WholeName(known->second) + u", "_s + known->second.Mesto;
    }
    if (same.size() > 1)
        reading.Refuse(u"Majitel "_s + InQuotes(WholeName(owner)) + u" je v seznamu vícekrát."_s);
    else if (same.size() == 1)
        reading.line.entry.dog.MajitelID = same.front();
    else if (!elsewhere.isEmpty())
        reading.Doubt(u"Majitel podobného jména je v seznamu s jinou adresou ("_s +
                      elsewhere.join(u"; "_s) + u"); převzetím vznikne další."_s);
}

} // namespace

void ReadOwnerCells(EntryReading& reading, const EntryTables& tables) {
    ReadOwnerTexts(reading);
    if (!reading.line.entry.owner.Jmeno.isEmpty())
        FindOwner(reading, tables);
}

} // namespace lorvo
