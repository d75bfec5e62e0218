#pragma once
// Judges entries that came as a table against what the database holds, by the rules that the dog
// editor goes by. Writes nothing.

#include "office/exchange/entry_fields.h"
#include "office/exchange/entry_line.h"
#include "office/exchange/entry_tables.h"

#include <map>
#include <set>
#include <tuple>

namespace lorvo {

class EntryBook {
  public:
    /// Reads the database once; the arguments as EntryTables has them.
    EntryBook(int vystavaID, DateValue today);

    /// What the office thinks of a row. Rows are judged in their order, since a dog may stand in
    /// the table twice.
    EntryLine Judge(int number, const QStringList& row, const ColumnChoice& columns);

  private:
    /// Folded name, breed and date of birth: what makes a dog the same.
    using DogKey = std::tuple<QString, int, int>;

    void LookForSameDog(EntryLine& line);

    EntryTables tables_;
    std::set<DogKey> knownDogs_;
    std::map<DogKey, int> lineOfDog_;
};

/// All rows of a table behind its headings.
std::vector<EntryLine> JudgedLines(const std::vector<QStringList>& rows,
                                   const ColumnChoice& columns, EntryBook& book);

} // namespace lorvo
