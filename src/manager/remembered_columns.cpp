#include "manager/remembered_columns.h"

#include "app/common_routines.h"
#include "office/exchange/folded_text.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kSection = u"Spravce\\Sloupce"_s;
/// Stands for "no column", which an empty text can't: that is what was never chosen.
const QString kNone = u"-"_s;

QString NameOf(EntryField field) {
    return FieldHeading(field);
}

int ColumnWithHeading(const QStringList& headings, const QString& folded) {
    for (int column = 0; column < headings.size(); ++column)
        if (FoldedText(headings[column]) == folded)
            return column;
    return -1;
}

} // namespace

ColumnChoice RememberedColumns(const QStringList& headings) {
    ColumnChoice columns = ColumnsByHeading(headings);
    for (int i = 0; i < kEntryFields; ++i) {
        const QString kept = ReadRegValue(kSection, NameOf(static_cast<EntryField>(i)));
        std::optional<int>& column = columns[static_cast<std::size_t>(i)];
        if (kept == kNone)
            column.reset();
        else if (const int found = ColumnWithHeading(headings, kept); !kept.isEmpty() && found >= 0)
            column = found;
    }
    return columns;
}

void RememberColumns(const QStringList& headings, const ColumnChoice& columns) {
    const ColumnChoice byHeading = ColumnsByHeading(headings);
    for (int i = 0; i < kEntryFields; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const QString name = NameOf(static_cast<EntryField>(i));
        if (columns[at])
            WriteRegValue(kSection, name, FoldedText(headings.value(*columns[at])));
        else if (byHeading[at]) // a column that isn't there has not been taken away by anybody
            WriteRegValue(kSection, name, kNone);
    }
}

} // namespace lorvo
