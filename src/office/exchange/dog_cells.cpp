#include "app/constant_tables.h"
#include "office/exchange/entry_reading.h"
#include "office/exchange/entry_words.h"
#include "office/exchange/folded_text.h"

#include <set>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Texts of a dog and the widths that the store has for them.
struct TextPlace {
    EntryField field;
    QString Psi::*place;
    int width;
};
const TextPlace kDogTexts[] = {{EntryField::DogName, &Psi::Jmeno, kJmenoWidth},
                               {EntryField::Kennel, &Psi::ChovnaStanice, kDogTextWidth},
                               {EntryField::Father, &Psi::Otec, kParentWidth},
                               {EntryField::Mother, &Psi::Matka, kParentWidth},
                               {EntryField::Breeder, &Psi::Chovatel, kDogTextWidth},
                               {EntryField::StudBook, &Psi::PK, kDogTextWidth},
                               {EntryField::Note, &Psi::Poznamka, kDogTextWidth}};

/// Cells that must not be empty, and letters that could not be read in any cell.
void LookAtAllCells(EntryReading& reading) {
    for (int i = 0; i < kEntryFields; ++i) {
        const auto field = static_cast<EntryField>(i);
        const QString text = reading.Text(field);
        if (text.contains(QChar::ReplacementCharacter))
            reading.Refuse(FieldHeading(field) +
                           u": některá písmena nejdou přečíst, zkuste jiné kódování."_s);
        else if (text.isEmpty() && IsFieldRequired(field))
            reading.Refuse(FieldHeading(field) + u": chybí."_s);
    }
}

/// Breeds that bear the name and are judged at the show.
std::set<int> JudgedBreeds(const EntryTables& tables, const QString& folded) {
    std::set<int> judged;
    const auto [first, last] = tables.breedsByName.equal_range(folded);
    for (auto breed = first; breed != last; ++breed)
        if (tables.judgedBreeds.contains(breed->second))
            judged.insert(breed->second);
    return judged;
}

void ReadBreed(EntryReading& reading, const EntryTables& tables) {
    const QString name = reading.Text(EntryField::Breed);
    const QString folded = FoldedText(name);
    const std::set<int> judged = JudgedBreeds(tables, folded);
    if (judged.size() == 1)
        reading.line.entry.dog.PlemenoID = *judged.begin();
    else if (judged.size() > 1)
        reading.Refuse(u"Název plemene "_s + InQuotes(name) + u" má v seznamu více plemen."_s);
    else if (tables.breedsByName.contains(folded))
        reading.Refuse(u"Plemeno "_s + InQuotes(name) + u" se na výstavě neposuzuje."_s);
    else if (!name.isEmpty())
        reading.Refuse(u"Plemeno "_s + InQuotes(name) + u" v seznamu plemen není."_s);
}

void ReadSex(EntryReading& reading) {
    const QString text = reading.Text(EntryField::Sex);
    const std::optional<bool> male = SexFromText(text);
    if (!text.isEmpty() && !male)
        reading.Refuse(u"Pohlaví "_s + InQuotes(text) + u" není „pes“ ani „fena“."_s);
    reading.line.entry.dog.PohlaviPes = male.value_or(false);
}

void ReadBirth(EntryReading& reading, const EntryTables& tables) {
    const QString text = reading.Text(EntryField::Born);
    reading.line.entry.dog.DatumNar = DayFromCell(text, tables.today, YearWindow::Past);
    if (!text.isEmpty() && !reading.line.entry.dog.DatumNar)
        reading.Refuse(u"Datum narození "_s + InQuotes(text) + u" není datum."_s);
}

bool IsOpenAt(int age, int trida, ClassList list) {
    const ConstantTables& tables = Tables();
    const auto at = static_cast<std::size_t>(trida - 1);
    return list == ClassList::Special
               ? IsClassOpen(age, tables.SpecialClassFrom[at], tables.SpecialClassTo[at])
               : IsClassOpen(age, tables.ClassFrom[at], tables.ClassTo[at]);
}

void ReadClass(EntryReading& reading, const EntryTables& tables) {
    Psi& dog = reading.line.entry.dog;
    const QString text = reading.Text(EntryField::Class);
    if (text.isEmpty() || dog.PlemenoID == 0 || !dog.DatumNar)
        return;
    if (tables.showDay.IsZero())
        return reading.Refuse(u"Není nastaveno datum výstavy, takže třídu nelze ověřit."_s);
    const ClassList list =
        dog.PlemenoID == kSpecialBreedID ? ClassList::Special : ClassList::Standard;
    const std::optional<int> trida = ClassFromText(text, list);
    if (!trida)
        return reading.Refuse(u"Třída "_s + InQuotes(text) + u" u tohoto plemene není."_s);
    const int age = AgeInMonths(*dog.DatumNar, tables.showDay, list);
    if (!IsOpenAt(age, *trida, list))
        return reading.Refuse(u"Třída "_s + InQuotes(text) + u" není pro psa ve věku "_s +
                              QString::number(age) + u" měsíců otevřená."_s);
    dog.Trida = *trida;
}

} // namespace

void ReadDogCells(EntryReading& reading, const EntryTables& tables) {
    LookAtAllCells(reading);
    for (const auto& [field, place, width] : kDogTexts)
        reading.line.entry.dog.*place = reading.Text(field, width);
    ReadBreed(reading, tables);
    ReadSex(reading);
    ReadBirth(reading, tables);
    ReadClass(reading, tables);
}

} // namespace lorvo
