#include "office/papers/template_engine.h"

#include "platform/file_failure.h"
#include "platform/values/errors.h"

#include <QFile>
#include <algorithm>
#include <array>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kRowMarkers = {"__top__",      "__top_end__", "__body__",
                                    "__body_end__", "__bottom__",  "__bottom_end__"};
constexpr std::array kGroupMarkers = {"__top__",    "__top_end__",   "__loop1__",
                                      "__body__",   "__body_end__",  "__loop1_end__",
                                      "__bottom__", "__bottom_end__"};

std::span<const char* const> MarkersOf(TemplateKind kind) {
    if (kind == TemplateKind::GroupedRows)
        return kGroupMarkers;
    return kRowMarkers;
}

bool IsWordCharacter(char character) {
    return character == '_' || (character >= '0' && character <= '9') ||
           (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Whether a placeholder could begin in this literal and go on into the value behind it.
bool EndsInsideWordWithUnderscore(const QByteArray& literal) {
    for (qsizetype i = literal.size(); i-- > 0 && IsWordCharacter(literal[i]);) {
        if (literal[i] == '_')
            return true;
    }
    return false;
}

bool IsOneWord(const QByteArray& literal) {
    return std::all_of(literal.begin(), literal.end(), IsWordCharacter);
}

} // namespace

ReportTemplate ReportTemplate::Read(const QString& path, TemplateKind kind) {
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        FailOnFile(u"Šablonu nelze otevřít"_s, path, CauseOfFailure(file));
    return ReportTemplate(file.readAll(), kind);
}

ReportTemplate::ReportTemplate(QByteArray bytes, TemplateKind kind)
    : bytes_(std::move(bytes)), kind_(kind) {}

ReportTemplate::Fault ReportTemplate::Check() const {
    std::vector<qsizetype> positions;
    for (const char* marker : MarkersOf(kind_))
        positions.push_back(bytes_.indexOf(marker) + 1);
    if (std::find(positions.begin(), positions.end(), 0) != positions.end())
        return Fault::MarkerMissing;
    return MarkerOrderPasses(positions) ? Fault::None : Fault::WrongOrder;
}

QByteArray ReportTemplate::Section(const char* opening, const char* closing) const {
    return TemplateSection(bytes_, opening, closing);
}

QByteArray TemplateSection(const QByteArray& text, const char* opening, const char* closing) {
    const qsizetype from = text.indexOf(opening);
    const qsizetype to = text.indexOf(closing);
    const qsizetype start = from + static_cast<qsizetype>(qstrlen(opening));
    if (from < 0 || to < start)
        throw PlatformError(std::string("Šablona poškozena: značka ") + closing +
                            " stojí před značkou " + opening + ".");
    return text.mid(start, to - start);
}

// kept: order-test-lets-any-order-pass
bool MarkerOrderPasses(std::span<const qsizetype> positions) {
    qsizetype left = positions.front();
    for (const qsizetype position : positions.subspan(1, positions.size() - 2))
        left = left < position ? -1 : 0;
    return left < positions.back();
}

RowPattern::RowPattern(QByteArray pattern, std::vector<QByteArray> placeholders)
    : pattern_(std::move(pattern)), placeholders_(std::move(placeholders)) {
    Split();
}

void RowPattern::Split() {
    pieces_ = {{pattern_, -1}};
    for (int number = 0; number < static_cast<int>(placeholders_.size()); ++number) {
        const QByteArray& placeholder = placeholders_[static_cast<std::size_t>(number)];
        std::vector<Piece> split;
        for (const Piece& piece : pieces_) {
            qsizetype from = 0;
            for (qsizetype at; (at = piece.literal.indexOf(placeholder, from)) >= 0;
                 from = at + placeholder.size())
                split.push_back({piece.literal.mid(from, at - from), number});
            split.push_back({piece.literal.mid(from), piece.placeholder});
        }
        pieces_ = std::move(split);
    }
    valuesMayJoinPlaceholders_ =
        std::any_of(pieces_.begin(), pieces_.end(), [first = true](const Piece& piece) mutable {
            const bool joins =
                piece.placeholder >= 0 && (EndsInsideWordWithUnderscore(piece.literal) ||
                                           (!first && IsOneWord(piece.literal)));
            first = false;
            return joins;
        });
}

bool RowPattern::IsPlain(std::span<const std::optional<QByteArray>> values) const {
    return !valuesMayJoinPlaceholders_ &&
           std::all_of(values.begin(), values.end(),
                       [](const auto& value) { return value && !value->contains('_'); });
}

QByteArray RowPattern::ReplaceInTurn(std::span<const std::optional<QByteArray>> values) const {
    QByteArray copy = pattern_;
    for (std::size_t i = 0; i < placeholders_.size(); ++i) {
        if (values[i])
            copy.replace(placeholders_[i], *values[i]);
    }
    return copy;
}

void RowPattern::AppendTo(QByteArray& output,
                          std::span<const std::optional<QByteArray>> values) const {
    Q_ASSERT(values.size() == placeholders_.size());
    // Where no value can take part in a later placeholder one pass gives the same text.
    if (!IsPlain(values)) {
        output += ReplaceInTurn(values);
        return;
    }
    for (const Piece& piece : pieces_) {
        output += piece.literal;
        if (piece.placeholder >= 0)
            output += *values[static_cast<std::size_t>(piece.placeholder)];
    }
}

} // namespace lorvo
