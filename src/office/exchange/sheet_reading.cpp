// Reading spreadsheets through liborcus.

#include "office/exchange/csv_text.h"
#include "office/exchange/scratch_folder.h"
#include "office/exchange/sheet_files.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

#ifdef LORVO_READS_SHEETS
#include <orcus/orcus_ods.hpp>
#include <orcus/orcus_xlsx.hpp>
#include <orcus/spreadsheet/document.hpp>
#include <orcus/spreadsheet/factory.hpp>

#include <stdexcept>
#endif

namespace lorvo {

using namespace Qt::StringLiterals;

bool IsSheetName(const QString& path) {
    return path.endsWith(u".xlsx"_s, Qt::CaseInsensitive) ||
           path.endsWith(u".ods"_s, Qt::CaseInsensitive);
}

#ifdef LORVO_READS_SHEETS

namespace {

/// What a sheet of any office program may be as large as.
constexpr orcus::spreadsheet::range_size_t kLargestSheet{1048576, 16384};

void Import(const QString& path, orcus::spreadsheet::document& document) {
    const QByteArray bytes = ReadWholeFile(path);
    const std::string_view stream(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    orcus::spreadsheet::import_factory factory(document);
    if (path.endsWith(u".ods"_s, Qt::CaseInsensitive))
        orcus::orcus_ods(&factory).read_stream(stream);
    else
        orcus::orcus_xlsx(&factory).read_stream(stream);
}

QString NameOf(const orcus::spreadsheet::document& document, std::size_t sheet) {
    const std::string_view name =
        document.get_sheet_name(static_cast<orcus::spreadsheet::sheet_t>(sheet));
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

/// The library puts each sheet into a file that bears its name; the first one is read back. No
/// office program lets a sheet have a name that leads into another folder.
QString FirstSheetAsCsv(const orcus::spreadsheet::document& document) {
    for (std::size_t i = 0; i < document.get_sheet_count(); ++i)
        if (const QString name = NameOf(document, i); name.contains(u'/'))
            throw std::runtime_error("list „" + name.toStdString() + "“");
    if (document.get_sheet_count() == 0)
        return {};
    const ScratchFolder folder;
    document.dump_csv(folder.path().toStdString());
    return QString::fromUtf8(ReadWholeFile(folder.filePath(NameOf(document, 0) + u".csv"_s)));
}

} // namespace

bool CanReadSheets() {
    return true;
}

std::vector<QStringList> SheetRows(const QString& path) {
    try {
        orcus::spreadsheet::document document(kLargestSheet);
        Import(path, document);
        return CsvRows(FirstSheetAsCsv(document), u',');
    } catch (const PlatformError&) {
        throw;
    } catch (const std::exception& failure) {
        throw PlatformError("Soubor „" + path.toStdString() +
                            "“ není tabulka, kterou by šlo přečíst. Uložte ji jako CSV. (" +
                            failure.what() + ")");
    }
}

#else

bool CanReadSheets() {
    return false;
}

std::vector<QStringList> SheetRows(const QString& path) {
    throw PlatformError(
        "Soubor „" + path.toStdString() +
        "“ je tabulka, kterou tento program na tomto počítači neumí přečíst. Uložte ji jako CSV.");
}

#endif

} // namespace lorvo
