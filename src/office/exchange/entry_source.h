#pragma once
// A file of entries as it came: its bytes are kept, so that a wrong guess of letters or separators
// can be put right.

#include "office/exchange/text_encoding.h"

#include <QStringList>
#include <vector>

namespace lorvo {

class EntrySource {
  public:
    EntrySource() = default;
    /// Reads the file and guesses. Raises PlatformError when it can't be read.
    explicit EntrySource(const QString& path);

    const QString& Path() const { return path_; }
    /// Whether that name, by whatever road, is the file that was read.
    bool IsFile(const QString& path) const;
    /// A spreadsheet has neither letters nor separators to choose.
    bool IsSheet() const { return isSheet_; }
    TextEncoding Encoding() const { return encoding_; }
    QChar Separator() const { return separator_; }

    /// Reads the kept bytes anew; the separator is guessed again.
    void SetEncoding(TextEncoding encoding);
    void SetSeparator(QChar separator);

    /// The first row; empty for an empty file.
    QStringList Headings() const { return rows_.empty() ? QStringList() : rows_.front(); }
    /// Headings and what follows.
    const std::vector<QStringList>& Rows() const { return rows_; }

  private:
    QString path_;
    bool isSheet_ = false;
    QByteArray bytes_;
    TextEncoding encoding_ = TextEncoding::Utf8;
    QChar separator_ = u';';
    std::vector<QStringList> rows_;
};

} // namespace lorvo
