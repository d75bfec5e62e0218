// Reading spreadsheets by their endings. The library at hand lost line breaks, merged cells and the
// results of formulas without a word.

#include "office/exchange/sheet_files.h"
#include "office/exchange/sheet_formats.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

std::vector<QStringList> RowsOf(const QByteArray& bytes, bool isOds) {
    const ZipParts parts(bytes);
    SheetGrid grid;
    if (isOds)
        ReadOds(parts, grid);
    else
        ReadXlsx(parts, grid);
    return grid.TakeRows();
}

} // namespace

bool IsSheetName(const QString& path) {
    return path.endsWith(u".xlsx"_s, Qt::CaseInsensitive) ||
           path.endsWith(u".ods"_s, Qt::CaseInsensitive);
}

std::vector<QStringList> SheetRows(const QString& path) {
    const QByteArray bytes = ReadWholeFile(path);
    try {
        return RowsOf(bytes, path.endsWith(u".ods"_s, Qt::CaseInsensitive));
    } catch (const PlatformError& failure) {
        throw PlatformError("Soubor „" + path.toStdString() +
                            "“ není tabulka, kterou by šlo přečíst. Uložte ji jako CSV. (" +
                            failure.what() + ")");
    }
}

} // namespace lorvo
