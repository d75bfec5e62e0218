#pragma once
// The content of an ini file as lines, so that one key can be read or set while every other byte
// stays as it is.

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

class IniText {
  public:
    /// Bytes in windows-1250, also behind a UTF-8 mark, or UTF-16 with its mark. Nullopt for
    /// UTF-16 that can't be written back as it was.
    [[nodiscard]] static std::optional<IniText> FromBytes(const QByteArray& bytes);
    QByteArray ToBytes() const;

    /// Value of the key's first line in the first section of that name; quotes around it are taken
    /// off. Letter case doesn't count. Empty when there is none.
    QString Value(const QString& section, const QString& key) const;
    /// Sets the same line, or adds it at the end of the section, or adds the section at the end.
    void SetValue(const QString& section, const QString& key, const QString& text);

  private:
    enum class Encoding { Cp1250, Utf16LittleEndian, Utf16BigEndian };
    struct Line {
        QString text;
        QString end; ///< its line break; empty for a last line without one
    };

    QByteArray Encoded(const QString& text) const;
    void SplitLines(const QString& text);
    QString LineEnd() const;
    std::size_t SectionStart(const QString& section) const;
    std::size_t SectionEnd(std::size_t start) const;
    [[nodiscard]] std::optional<std::size_t> KeyLine(const QString& section,
                                                     const QString& key) const;
    void InsertLine(std::size_t at, const QString& text);

    Encoding encoding_ = Encoding::Cp1250;
    QByteArray mark_;
    std::vector<Line> lines_;
};

} // namespace lorvo
