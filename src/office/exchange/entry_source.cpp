#include "office/exchange/entry_source.h"

#include "office/exchange/csv_text.h"
#include "office/exchange/sheet_files.h"
#include "platform/values/errors.h"

#include <QFile>

namespace lorvo {

EntrySource::EntrySource(const QString& path) : path_(path), isSheet_(IsSheetName(path)) {
    if (isSheet_) {
        rows_ = SheetRows(path);
        return;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw PlatformError("Soubor „" + path.toStdString() + "“ nejde otevřít.");
    bytes_ = file.readAll();
    SetEncoding(GuessEncoding(bytes_));
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
