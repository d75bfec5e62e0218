#pragma once
// The template route's engine: a template's sections and its row pattern. Works on bytes in
// windows-1250, as the files hold them.

#include <QByteArray>
#include <QString>
#include <optional>
#include <span>
#include <vector>

namespace lorvo {

/// The markers of a template, in the order in which a template is meant to hold them.
enum class TemplateKind { Rows, GroupedRows };

class ReportTemplate {
  public:
    enum class Fault { None, MarkerMissing, WrongOrder };

    /// Reads the file whole. A missing file is made, empty; a missing folder or a file that can't
    /// be opened raises PlatformError with its name.
    static ReportTemplate Read(const QString& path, TemplateKind kind);
    ReportTemplate(QByteArray bytes, TemplateKind kind);

    [[nodiscard]] Fault Check() const;

    // Text strictly between the opening and the closing marker. A closing marker before its opening
    // one raises PlatformError.
    QByteArray Top() const { return Section("__top__", "__top_end__"); }
    QByteArray Body() const { return Section("__body__", "__body_end__"); }
    QByteArray Bottom() const { return Section("__bottom__", "__bottom_end__"); }
    QByteArray Group() const { return Section("__loop1__", "__loop1_end__"); }

  private:
    QByteArray Section(const char* opening, const char* closing) const;

    QByteArray bytes_;
    TemplateKind kind_;
};

/// The text of a section inside any text, by the same rules.
QByteArray TemplateSection(const QByteArray& text, const char* opening, const char* closing);

/// The order test over marker positions counted from 1. It compares from left to right, each truth
/// value (-1 or 0) standing in for the comparison's left side in the next one, and therefore lets
/// every order of found markers pass.
[[nodiscard]] bool MarkerOrderPasses(std::span<const qsizetype> positions);

/// A section that is copied for each row, with its placeholders replaced one after the other: a
/// value that spells a later placeholder is itself replaced.
class RowPattern {
  public:
    /// `placeholders` in the order of replacement, underscores included ("_katcislo_").
    RowPattern(QByteArray pattern, std::vector<QByteArray> placeholders);

    /// Appends one copy to `output`. A value for each placeholder; one without a value stays in the
    /// text.
    void AppendTo(QByteArray& output, std::span<const std::optional<QByteArray>> values) const;

  private:
    struct Piece {
        QByteArray literal;
        int placeholder = -1; ///< position of the value behind the literal, -1 for none
    };

    void Split();
    bool IsPlain(std::span<const std::optional<QByteArray>> values) const;
    QByteArray ReplaceInTurn(std::span<const std::optional<QByteArray>> values) const;

    QByteArray pattern_;
    std::vector<QByteArray> placeholders_;
    std::vector<Piece> pieces_;
    bool valuesMayJoinPlaceholders_ = false;
};

} // namespace lorvo
