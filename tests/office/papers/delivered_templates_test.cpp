// The templates as they are delivered.

#include "office/papers/template_engine.h"
#include "platform/values/cp1250.h"
#include "support/source_file.h"

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>
#include <ostream>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

struct Delivered {
    const char16_t* file;
    TemplateKind kind;
    const char16_t* placeholders; ///< those that its report knows
};

void PrintTo(const Delivered& delivered, std::ostream* out) {
    *out << QString::fromUtf16(delivered.file).toStdString();
}

const Delivered kDelivered[] = {
    {u"Diplomy.html", TemplateKind::Rows,
     u"majjmeno majulice majmesto majpsc adresa uvod odstavec1 katcislo jmenopsa plemeno "
     u"trida"},
    {u"Platby.html", TemplateKind::Rows, u"majitel jmenopsa datum kc uhrada ucet"},
    {u"Posudkové listy.html", TemplateKind::Rows,
     u"nadpis katcislo jmenopsa pohlavi PK trida dnarozeni plemeno majitel"},
    {u"Pozvánky.html", TemplateKind::Rows,
     u"majjmeno majulice majmesto majpsc adresa uvod odstavec1 katcislo jmenopsa plemeno trida "
     u"odstavec2 odstavec3 odstavec4 odstavec5 odstavec6 odstavec7 odstavec8 jmeno titul"},
    {u"Seznam psů.html", TemplateKind::GroupedRows, u"skupina radek"},
    {u"Seznam vystavovatelů.html", TemplateKind::Rows,
     u"majjmeno majulice majmesto majpsc cislapsu"},
};

QByteArray Bytes(const Delivered& delivered) {
    QFile file(test::SourceFile(u"Šablony/"_s + QString::fromUtf16(delivered.file)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The words with underscores around them, each once.
QStringList Placeholders(const QByteArray& section) {
    QStringList words;
    const QRegularExpression word(u"(?<![_A-Za-z0-9])_([A-Za-z0-9]+)_(?![_A-Za-z0-9])"_s);
    for (auto match = word.globalMatch(FromCp1250(section)); match.hasNext();)
        words << match.next().captured(1);
    words.sort();
    words.removeDuplicates();
    return words;
}

class DeliveredTemplate : public testing::TestWithParam<Delivered> {
  protected:
    const QByteArray bytes = Bytes(GetParam());
    const ReportTemplate pattern{bytes, GetParam().kind};
    const QByteArray rows =
        GetParam().kind == TemplateKind::GroupedRows ? pattern.Group() : pattern.Body();
};

} // namespace

TEST_P(DeliveredTemplate, PassesTheChecks) {
    EXPECT_EQ(pattern.Check(), ReportTemplate::Fault::None);
}

TEST_P(DeliveredTemplate, HoldsEveryPlaceholderOfItsReportAndNoOther) {
    QStringList known = QString::fromUtf16(GetParam().placeholders).split(u' ');
    known.sort();
    EXPECT_EQ(Placeholders(rows), known) << known.join(u' ').toStdString();
    EXPECT_TRUE(Placeholders(pattern.Top() + pattern.Bottom()).isEmpty());
}

TEST_P(DeliveredTemplate, IsInItsCodePageAndSaysSo) {
    EXPECT_EQ(ToCp1250(FromCp1250(bytes)), bytes);
    EXPECT_NE(QString::fromUtf8(bytes).toUtf8(), bytes) << "the file is UTF-8";
    EXPECT_FALSE(FromCp1250(bytes).contains(QRegularExpression(u"[\\x80-\\x9f]"_s)));
    EXPECT_TRUE(pattern.Top().startsWith("<!DOCTYPE HTML PUBLIC '-//W3C//DTD HTML 4.01"));
    EXPECT_TRUE(pattern.Top().contains(
        "<meta http-equiv='content-type' content='text/html; charset=windows-1250'>"));
}

TEST_P(DeliveredTemplate, KeepsItsNotesOutsideTheSections) {
    EXPECT_TRUE(bytes.startsWith("<!--"));
    EXPECT_LT(bytes.indexOf("-->"), bytes.indexOf("__top__"));
    EXPECT_FALSE(pattern.Top().contains("<!--"));
    EXPECT_FALSE(pattern.Bottom().contains("<!--"));
}

INSTANTIATE_TEST_SUITE_P(All, DeliveredTemplate, testing::ValuesIn(kDelivered));

} // namespace lorvo
