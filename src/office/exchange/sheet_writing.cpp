// Writing spreadsheets through libxlsxwriter.

#include "office/exchange/scratch_folder.h"
#include "office/exchange/sheet_files.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

#ifdef LORVO_WRITES_SHEETS
#include <xlsxwriter.h>

#include <QFile>
#include <algorithm>
#endif

namespace lorvo {

using namespace Qt::StringLiterals;

#ifdef LORVO_WRITES_SHEETS

namespace {

constexpr double kWidestColumn = 40;
/// 1.1.2000, so that equal tables give equal files.
constexpr time_t kFixedMoment = 946684800;

/// Puts rows into one sheet; text, counts, amounts and days by the format that each needs.
class SheetWriter {
  public:
    SheetWriter(lxw_workbook* book, lxw_worksheet* sheet)
        : sheet_(sheet), bold_(workbook_add_format(book)), amount_(workbook_add_format(book)),
          day_(workbook_add_format(book)) {
        format_set_bold(bold_);
        format_set_num_format(amount_, "#,##0.00");
        format_set_num_format(day_, "d.m.yyyy");
    }

    void Write(const ListTable& table) {
        for (const QString& heading : table.headings)
            widths_.push_back(static_cast<double>(heading.size()));
        WriteHeadings(table.headings);
        for (const TableRow& row : table.rows)
            WriteRow(row);
        WriteRow(table.totals);
        for (std::size_t i = 0; i < widths_.size(); ++i) {
            const auto column = static_cast<lxw_col_t>(i);
            worksheet_set_column(sheet_, column, column, std::min(widths_[i] + 2, kWidestColumn),
                                 nullptr);
        }
        worksheet_freeze_panes(sheet_, 1, 0);
    }

  private:
    void WriteHeadings(const QStringList& headings) {
        for (qsizetype i = 0; i < headings.size(); ++i)
            worksheet_write_string(sheet_, 0, static_cast<lxw_col_t>(i),
                                   headings[i].toUtf8().constData(), bold_);
    }

    void WriteRow(const TableRow& row) {
        ++row_;
        for (std::size_t i = 0; i < row.size(); ++i) {
            column_ = static_cast<lxw_col_t>(i);
            std::visit(*this, row[i]);
            if (i < widths_.size())
                widths_[i] = std::max(widths_[i], static_cast<double>(CellText(row[i]).size()));
        }
    }

  public: // what std::visit calls
    void operator()(std::monostate) const {}
    void operator()(const QString& text) const {
        worksheet_write_string(sheet_, row_, column_, text.toUtf8().constData(), nullptr);
    }
    void operator()(int count) const {
        worksheet_write_number(sheet_, row_, column_, count, nullptr);
    }
    void operator()(Currency amount) const {
        worksheet_write_number(
            sheet_, row_, column_,
            static_cast<double>(amount.Raw()) / static_cast<double>(Currency::kScale), amount_);
    }
    void operator()(DateValue day) const {
        worksheet_write_number(sheet_, row_, column_, day.Days(), day_);
    }

  private:
    lxw_worksheet* sheet_;
    lxw_format* bold_;
    lxw_format* amount_;
    lxw_format* day_;
    std::vector<double> widths_;
    lxw_row_t row_ = 0;
    lxw_col_t column_ = 0;
};

void WriteBook(const ListTable& table, const QByteArray& path) {
    lxw_workbook* const book = workbook_new(path.constData());
    lxw_doc_properties properties{};
    QByteArray title = table.title.toUtf8();
    properties.title = title.data();
    properties.created = kFixedMoment;
    workbook_set_properties(book, &properties);
    lxw_worksheet* const sheet =
        workbook_add_worksheet(book, table.title.left(31).toUtf8().constData());
    SheetWriter(book, sheet).Write(table);
    const lxw_error code = workbook_close(book);
    if (code != LXW_NO_ERROR)
        throw PlatformError(std::string("Tabulku nejde uložit. (") + lxw_strerror(code) + ")");
}

} // namespace

bool CanWriteSheets() {
    return true;
}

QByteArray SheetBytes(const ListTable& table) {
    const ScratchFolder folder;
    const QString path = folder.filePath(u"tabulka.xlsx"_s);
    WriteBook(table, QFile::encodeName(path));
    return ReadWholeFile(path);
}

#else

bool CanWriteSheets() {
    return false;
}

QByteArray SheetBytes(const ListTable&) {
    throw PlatformError("Tento počítač umí ukládat seznamy jen jako CSV.");
}

#endif

} // namespace lorvo
