#pragma once
// What an entry that comes as a row of a table is made of, and how the columns of the table are
// told.

#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <vector>

namespace lorvo {

enum class EntryField {
    DogName,
    Kennel,
    Breed,
    Sex,
    Born,
    Class,
    Father,
    Mother,
    Breeder,
    StudBook,
    Note,
    OwnerName,
    OwnerSurname,
    Street,
    PostCode,
    Town,
    Country,
    Telephone,
    Email,
    Show,
    Closing,
    FirstDog,
    Competitions,
    Paid
};

inline constexpr int kEntryFields = static_cast<int>(EntryField::Paid) + 1;

/// The heading that a template and an export give the column, such as "Datum narození".
QString FieldHeading(EntryField field);
/// What stands in the column, in a sentence for whoever makes the table.
QString FieldMeaning(EntryField field);
/// Without these columns no row can be taken.
bool IsFieldRequired(EntryField field);

/// For each field the column that it is read from; nullopt where there is none.
using ColumnChoice = std::array<std::optional<int>, kEntryFields>;

/// Matches headings to fields by their usual names, accents and letter case aside. A column serves
/// one field; the leftmost of several that fit.
ColumnChoice ColumnsByHeading(const QStringList& headings);

/// The cell of a field, blanks around taken off; empty where the table has no such column or the
/// row is too short.
QString CellOf(const QStringList& row, const ColumnChoice& columns, EntryField field);

/// Headings of all fields, as an empty table for entries begins.
QStringList EntryHeadings();

} // namespace lorvo
