#include "office/exchange/entry_book.h"

#include "office/exchange/entry_reading.h"
#include "office/exchange/folded_text.h"
#include "store/psi_lists.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

void SetKnown(EntryLine& line, const QString& reason) {
    line.state = LineState::Known;
    line.canBeTaken = false;
    line.reasons = {reason};
}

} // namespace

EntryBook::EntryBook(int vystavaID, DateValue today) : tables_(vystavaID, today) {
    for (const Psi& dog : DogsByName())
        if (dog.DatumNar)
            knownDogs_.emplace(FoldedText(dog.Jmeno), dog.PlemenoID, dog.DatumNar->Days());
}

EntryLine EntryBook::Judge(int number, const QStringList& row, const ColumnChoice& columns) {
    EntryReading reading{row, columns, {}};
    reading.line.number = number;
    reading.line.cells = row;
    ReadDogCells(reading, tables_);
    ReadOwnerCells(reading, tables_);
    ReadShowCells(reading, tables_);
    LookForSameDog(reading.line);
    return std::move(reading.line);
}

void EntryBook::LookForSameDog(EntryLine& line) {
    const Psi& dog = line.entry.dog;
    if (dog.PlemenoID == 0 || !dog.DatumNar)
        return;
    const DogKey key{FoldedText(dog.Jmeno), dog.PlemenoID, dog.DatumNar->Days()};
    if (knownDogs_.contains(key))
        return SetKnown(line, u"Pes je už přihlášen."_s);
    if (!line.canBeTaken)
        return; // a later line may have the dog right
    const auto [earlier, isFirst] = lineOfDog_.emplace(key, line.number);
    if (!isFirst)
        SetKnown(line, u"Stejný pes je na řádku "_s + QString::number(earlier->second) + u'.');
}

std::vector<EntryLine> JudgedLines(const std::vector<QStringList>& rows,
                                   const ColumnChoice& columns, EntryBook& book) {
    std::vector<EntryLine> lines;
    for (std::size_t i = 1; i < rows.size(); ++i)
        lines.push_back(book.Judge(static_cast<int>(i), rows[i], columns));
    return lines;
}

} // namespace lorvo
