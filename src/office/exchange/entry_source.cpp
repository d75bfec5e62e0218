#include "office/exchange/entry_source.h"

#include "office/exchange/csv_text.h"
#include "office/exchange/sheet_files.h"
#include "platform/whole_file.h"

#include <QFileInfo>

namespace lorvo {

EntrySource::EntrySource(const QString& path) : path_(path), isSheet_(IsSheetName(path)) {
    if (isSheet_) {
        rows_ = SheetRows(path);
        return;
    }
    bytes_ = ReadWholeFile(path);
    SetEncoding(GuessEncoding(bytes_));
}

bool EntrySource::IsFile(const QString& path) const {
    const QString whole = QFileInfo(path).canonicalFilePath();
    return !whole.isEmpty() && whole == QFileInfo(path_).canonicalFilePath();
}

void EntrySource::SetEncoding(TextEncoding encoding) {
    encoding_ = encoding;
    SetSeparator(GuessSeparator(Decoded(bytes_, encoding_)));
}

void EntrySource::SetSeparator(QChar separator) {
    separator_ = separator;
    rows_ = CsvRows(Decoded(bytes_, encoding_), separator_);
}

} // namespace lorvo
