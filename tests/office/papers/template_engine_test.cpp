#include "office/papers/template_engine.h"

#include "platform/values/errors.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kSimple =
    "note __top__T__top_end__ x __body__<_a_>__body_end__ y __bottom__B__bottom_end__ z";

ReportTemplate Rows(const QByteArray& text) {
    return ReportTemplate(text, TemplateKind::Rows);
}

TEST(ReportTemplate, SectionsAreWhatLiesBetweenTheirMarkers) {
    const ReportTemplate report = Rows(kSimple);
    EXPECT_EQ(report.Check(), ReportTemplate::Fault::None);
    EXPECT_EQ(report.Top(), "T");
    EXPECT_EQ(report.Body(), "<_a_>");
    EXPECT_EQ(report.Bottom(), "B");
}

TEST(ReportTemplate, EveryMarkerIsMissed) {
    for (const char* marker :
         {"__top__", "__top_end__", "__body__", "__body_end__", "__bottom__", "__bottom_end__"})
        EXPECT_EQ(Rows(QByteArray(kSimple).replace(marker, "")).Check(),
                  ReportTemplate::Fault::MarkerMissing)
            << marker;
    EXPECT_EQ(Rows("").Check(), ReportTemplate::Fault::MarkerMissing);
    EXPECT_EQ(Rows(QByteArray(kSimple).replace("__top__", "__TOP__")).Check(),
              ReportTemplate::Fault::MarkerMissing);
}

TEST(ReportTemplate, GroupedTemplateAsksForItsLoop) {
    EXPECT_EQ(ReportTemplate(kSimple, TemplateKind::GroupedRows).Check(),
              ReportTemplate::Fault::MarkerMissing);
    const ReportTemplate grouped("__top____top_end____loop1__g__body__r__body_end__h__loop1_end__"
                                 "__bottom____bottom_end__",
                                 TemplateKind::GroupedRows);
    EXPECT_EQ(grouped.Check(), ReportTemplate::Fault::None);
    EXPECT_EQ(grouped.Group(), "g__body__r__body_end__h");
    EXPECT_EQ(grouped.Top(), "");
}

TEST(ReportTemplate, WrongOrderPassesTheTest) {
    const ReportTemplate report =
        Rows("__bottom__B__bottom_end____body__r__body_end____top__T__top_end__");
    EXPECT_EQ(report.Check(), ReportTemplate::Fault::None);
    EXPECT_EQ(report.Top() + report.Body() + report.Bottom(), "TrB");
}

// kept: order-test-lets-any-order-pass
TEST(ReportTemplate, OrderTestLetsEveryOrderOfFoundMarkersPass) {
    std::vector<qsizetype> positions = {1, 2, 3, 4, 5, 6};
    do {
        EXPECT_TRUE(MarkerOrderPasses(positions));
    } while (std::next_permutation(positions.begin(), positions.end()));
    // The chain itself: only a last position that is no position at all could fail.
    EXPECT_FALSE(MarkerOrderPasses(std::vector<qsizetype>{1, 2, -1}));
}

TEST(ReportTemplate, ClosingBeforeOpeningIsAFailure) {
    const ReportTemplate report =
        Rows("__top_end__T__top____body____body_end____bottom____bottom_end__");
    EXPECT_EQ(report.Check(), ReportTemplate::Fault::None);
    EXPECT_THROW(report.Top(), PlatformError);
    EXPECT_EQ(report.Body(), "");
}

TEST(ReportTemplate, MissingFileIsMadeEmpty) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Diplomy.html"_s);
    EXPECT_EQ(ReportTemplate::Read(path, TemplateKind::Rows).Check(),
              ReportTemplate::Fault::MarkerMissing);
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(QFile(path).size(), 0);
}

TEST(ReportTemplate, MissingFolderIsAFailureThatNamesTheFile) {
    const QTemporaryDir folder;
    try {
        ReportTemplate::Read(folder.filePath(u"Šablony/Diplomy.html"_s), TemplateKind::Rows);
        FAIL();
    } catch (const PlatformError& error) {
        EXPECT_NE(std::string(error.what()).find("Diplomy.html"), std::string::npos);
    }
}

using Values = std::vector<std::optional<QByteArray>>;

QByteArray Filled(const RowPattern& pattern, const Values& values) {
    QByteArray copy;
    pattern.AppendTo(copy, values);
    return copy;
}

TEST(RowPattern, ReplacesAllOccurrences) {
    const RowPattern pattern("<_a_>_b_<_a_>", {"_a_", "_b_"});
    EXPECT_EQ(Filled(pattern, Values{"1", "2"}), "<1>2<1>");
    EXPECT_EQ(Filled(pattern, Values{"", ""}), "<><>");
}

TEST(RowPattern, UnknownAndValuelessPlaceholdersStay) {
    const RowPattern pattern("_x_ _a_ _b_ _A_", {"_a_", "_b_"});
    EXPECT_EQ(Filled(pattern, Values{std::nullopt, "2"}), "_x_ _a_ 2 _A_");
}

TEST(RowPattern, ValueThatSpellsALaterPlaceholderIsReplaced) {
    const RowPattern pattern("_a_|_b_", {"_a_", "_b_"});
    EXPECT_EQ(Filled(pattern, Values{"_b_", "2"}), "2|2");
    EXPECT_EQ(Filled(pattern, Values{"1", "_a_"}), "1|_a_");
}

TEST(RowPattern, ValuesAreTakenAsTheyAre) {
    const RowPattern pattern("<td>_a_</td>", {"_a_"});
    EXPECT_EQ(Filled(pattern, Values{"<b>&\"\r\n"}), "<td><b>&\"\r\n</td>");
}

QByteArray ReplacedInTurn(QByteArray text, const std::vector<QByteArray>& placeholders,
                          const Values& values) {
    for (std::size_t i = 0; i < placeholders.size(); ++i) {
        if (values[i])
            text.replace(placeholders[i], *values[i]);
    }
    return text;
}

// Patterns and values made of the letters that placeholders are made of, so that they touch,
// overlap and arise from one another.
TEST(RowPattern, EqualsOneReplacementAfterTheOther) {
    std::mt19937 random(3);
    const std::vector<QByteArray> placeholders = {"_a_", "_ab_", "_b_"};
    const auto pick = [&random](const QByteArray& from, unsigned most) {
        QByteArray text;
        for (auto length = random() % (most + 1); length > 0; --length)
            text += from[static_cast<qsizetype>(random() % static_cast<std::size_t>(from.size()))];
        return text;
    };
    for (int i = 0; i < 30000; ++i) {
        const QByteArray text = pick("ab__ ", 16);
        Values values;
        for (std::size_t n = 0; n < placeholders.size(); ++n)
            values.push_back(random() % 8 ? std::optional(pick(i % 2 ? "ab" : "ab_", 3))
                                          : std::nullopt);
        ASSERT_EQ(Filled(RowPattern(text, placeholders), values),
                  ReplacedInTurn(text, placeholders, values))
            << text.constData();
    }
}

TEST(ReportTemplate, AnyBytesGiveSectionsOrAClearFailure) {
    std::mt19937 random(5);
    const std::vector<QByteArray> parts = {
        "__top__",        "__top_end__", "__body__",          "__body_end__", "__bottom__",
        "__bottom_end__", "_",           QByteArray(1, '\0'), "\x81\xff"};
    for (int i = 0; i < 20000; ++i) {
        QByteArray text;
        for (unsigned n = 0; n < 14; ++n)
            text += parts[random() % parts.size()];
        const ReportTemplate report = Rows(text);
        if (report.Check() != ReportTemplate::Fault::None)
            continue;
        try {
            EXPECT_LE((report.Top() + report.Body() + report.Bottom()).size(), 3 * text.size());
        } catch (const PlatformError&) {
        }
    }
}

} // namespace
} // namespace lorvo
