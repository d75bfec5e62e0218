#include "office/exchange/entry_fields.h"

#include "office/exchange/folded_text.h"

#include <algorithm>
#include <set>

namespace lorvo {

namespace {

struct FieldRow {
    const char16_t* heading;
    const char16_t* meaning;
    bool required;
    /// Other headings that web forms use, folded, with bars between.
    const char16_t* aliases;
};

constexpr std::array<FieldRow, kEntryFields> kFields = {{
    {u"Jméno psa", u"Jméno psa, nejvýše 50 znaků.", true, u"jmeno|pes|jmeno psa feny|name|dog"},
    {u"Chovatelská stanice", u"Jméno stanice, které se píše za jméno psa.", false,
     u"stanice|chovna stanice|chs|kennel"},
    {u"Plemeno", u"Český nebo původní název plemene ze seznamu.", true, u"breed|rasa"},
    {u"Pohlaví", u"„pes“ nebo „fena“.", true, u"sex|pes fena"},
    {u"Datum narození", u"Například 5.6.2024.", true, u"narozen|narozena|dat nar|datum nar|born"},
    {u"Třída", u"Název třídy nebo její číslo; musí být otevřená pro věk psa v den výstavy.", true,
     u"class|trida"},
    {u"Otec", u"Jméno otce.", false, u"father|sire"},
    {u"Matka", u"Jméno matky.", false, u"mother|dam"},
    {u"Chovatel", u"Jméno chovatele.", false, u"breeder"},
    {u"Zkr. PK a č. záp.", u"Zkratka plemenné knihy a číslo zápisu.", false,
     u"pk|cislo zapisu|c zapisu|zapis|plemenna kniha|zkr pk a c zap"},
    {u"Poznámka", u"Cokoli dalšího.", false, u"note"},
    {u"Majitel", u"Celé jméno majitele.", true,
     u"jmeno majitele|vystavovatel|majitel jmeno|prijmeni a jmeno|owner"},
    {u"Příjmení majitele", u"Jen tam, kde není součástí celého jména.", false,
     u"prijmeni|majitel prijmeni"},
    {u"Ulice", u"Ulice a číslo domu.", false, u"adresa|ulice a cislo|street"},
    {u"PSČ", u"Pět číslic.", false, u"psc majitele|zip"},
    {u"Město", u"Město nebo obec.", false, u"mesto|obec|bydliste|town|city"},
    {u"Stát", u"Jen u majitelů ze zahraničí.", false, u"zeme|country"},
    {u"Telefon", u"Telefonní číslo.", false, u"tel|mobil|phone"},
    {u"E-mail", u"E-mailová adresa.", false, u"email|mail|e mail"},
    {u"Výstava", u"Název výstavy; není-li vyplněna, platí ta, která je zvolená při převzetí.",
     false, u"show"},
    {u"Uzávěrka", u"„I“ nebo „II“, nebo den, kdy přihláška došla.", false,
     u"doslo|datum prihlaseni|datum prihlasky|prihlaseno|prijato|casova znacka"},
    {u"První pes", u"„Ano“ u prvního psa majitele; není-li vyplněno, určí se samo.", false,
     u"prvni"},
    {u"Soutěže", u"Názvy soutěží, mezi nimi čárka.", false, u"soutez|competitions"},
    {u"Uhrazeno", u"Částka v hlavní měně, která už byla zaplacena převodem.", false,
     u"zaplaceno|platba|castka|paid"},
}};

const FieldRow& RowOf(EntryField field) {
    return kFields[static_cast<std::size_t>(field)];
}

bool IsNameOf(const FieldRow& field, const QString& folded) {
    const QStringList aliases = QString::fromUtf16(field.aliases).split(u'|');
    return folded == FoldedText(QString::fromUtf16(field.heading)) || aliases.contains(folded);
}

} // namespace

QString FieldHeading(EntryField field) {
    return QString::fromUtf16(RowOf(field).heading);
}

QString FieldMeaning(EntryField field) {
    return QString::fromUtf16(RowOf(field).meaning);
}

bool IsFieldRequired(EntryField field) {
    return RowOf(field).required;
}

ColumnChoice ColumnsByHeading(const QStringList& headings) {
    QStringList folded;
    for (const QString& heading : headings)
        folded << FoldedText(heading);
    ColumnChoice columns;
    std::set<int> taken;
    for (std::size_t field = 0; field < kFields.size(); ++field) {
        for (int column = 0; column < folded.size() && !columns[field]; ++column)
            if (!taken.contains(column) && IsNameOf(kFields[field], folded[column]))
                columns[field] = column;
        if (columns[field])
            taken.insert(*columns[field]);
    }
    return columns;
}

QString CellOf(const QStringList& row, const ColumnChoice& columns, EntryField field) {
    const std::optional<int> column = columns[static_cast<std::size_t>(field)];
    return column ? row.value(*column).trimmed() : QString();
}

QStringList EntryHeadings() {
    QStringList headings;
    for (const FieldRow& field : kFields)
        headings << QString::fromUtf16(field.heading);
    return headings;
}

} // namespace lorvo
