#include "office/exchange/csv_text.h"

#include "office/exchange/text_encoding.h"
#include "support/print_qt.h"

#include <gtest/gtest.h>
#include <random>

namespace lorvo {
namespace {

using namespace Qt::StringLiterals;

/// "a|b/c|d": fields and rows in one text.
QString Read(const QString& text, QChar separator = u';') {
    QStringList rows;
    for (const QStringList& row : CsvRows(text, separator))
        rows << row.join(u'|');
    return rows.join(u'/');
}

TEST(CsvText, FieldsAndRows) {
    EXPECT_EQ(Read(u"a;b\nc;d\n"_s), u"a|b/c|d");
    EXPECT_EQ(Read(u"a;b\nc;d"_s), u"a|b/c|d");
    EXPECT_EQ(Read(u"a,b"_s, u','), u"a|b");
    EXPECT_EQ(Read(u";b;"_s), u"|b|");
    EXPECT_EQ(Read({}), QString());
}

TEST(CsvText, QuotesHoldSeparatorsQuotesAndLineEnds) {
    EXPECT_EQ(Read(u"\"a;b\";\"c\"\"d\";\"e\nf\"\ng"_s), u"a;b|c\"d|e\nf/g");
    EXPECT_EQ(Read(u"  \"a\" ;b"_s), u"a |b");
    EXPECT_EQ(Read(u"a \"b\" c"_s), u"a \"b\" c") << "a quote within a bare field is a letter";
    EXPECT_EQ(Read(u"\"never closed;b"_s), u"never closed;b");
}

TEST(CsvText, BlankLinesAreLeftOut) {
    EXPECT_EQ(Read(u"\n\na;b\n;;\n  \nc;d\n\n"_s), u"a|b/c|d");
}

TEST(CsvText, TheSeparatorIsGuessedOutsideQuotes) {
    EXPECT_EQ(GuessSeparator(u"a;b,c;d\n1,2,3,4,5"_s), u';');
    EXPECT_EQ(GuessSeparator(u"a,b,c;d"_s), u',');
    EXPECT_EQ(GuessSeparator(u"a\tb\tc"_s), u'\t');
    EXPECT_EQ(GuessSeparator(u"\n\n\"a,b,c,d\";b"_s), u';');
    EXPECT_EQ(GuessSeparator(u"alone"_s), u';');
}

TEST(CsvText, IsWrittenAsCzechSpreadsheetsOpenIt) {
    EXPECT_EQ(CsvBytes({{u"Jméno"_s, u"Kč"_s}, {u"a;b"_s, u"\"x\""_s}, {u" c"_s, u"d\ne"_s}}),
              QByteArray("\xEF\xBB\xBFJméno;Kč\r\n\"a;b\";\"\"\"x\"\"\"\r\n\" c\";\"d\ne\"\r\n"));
}

TEST(CsvText, WhatIsWrittenIsReadBack) {
    std::mt19937 dice(11);
    const QString letters = u"ab;,\"\n ř|\t"_s;
    for (int round = 0; round < 300; ++round) {
        std::vector<QStringList> rows;
        for (int row = 0; row < 4; ++row) {
            QStringList fields{u"x"_s}; // a blank line would be left out
            for (int field = 0; field < 3; ++field) {
                QString text;
                for (auto length = dice() % 6; length > 0; --length)
                    text += letters[static_cast<qsizetype>(dice() %
                                                           static_cast<unsigned>(letters.size()))];
                fields << text;
            }
            rows.push_back(fields);
        }
        const QString text = Decoded(CsvBytes(rows), TextEncoding::Utf8);
        ASSERT_EQ(CsvRows(text, u';'), rows) << "round " << round;
    }
}

} // namespace
} // namespace lorvo
