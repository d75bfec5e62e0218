// A document seen through the eyes of an office program that knows nothing of its writer.

#include "support/document_parts.h"
#include "support/office_program.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

void TypeTwoColumnPages(WordProcessor& word) {
    word.SetOrientation(PageOrientation::Landscape);
    word.SetFontName(u"Arial"_s);
    word.SetBold(FontSwitch::On);
    word.TypeText(u"Kruh 1 – ovčáci"_s);
    word.TypeParagraph();
    word.SetBold(FontSwitch::Off);
    for (int i = 0; i < 40; ++i)
        word.TypeText(u"  o. :\tŽofie\tm. : %1\n"_s.arg(i));
    word.InsertPageBreak();
    word.TypeText(u"Poslední strana"_s);
    word.HomeKeyStory();
    word.WholeStory();
    word.AddTextColumn(CentimetersToPoints(11.72), CentimetersToPoints(1.25));
    word.AddTabStop(CentimetersToPoints(1.0));
    word.AddTabStop(CentimetersToPoints(6.0));
    word.HomeKeyStory();
}

} // namespace

TEST(DocxRendering, AnOfficeProgramLaysTheDocumentOutAsTyped) {
    ASSERT_TRUE(HasOfficeProgram()) << "test.sh installs the office program that lays this out";
    DocumentDesk desk;
    const QString pdf = PdfOf(desk.Document(TypeTwoColumnPages), desk.folder.path());

    const QString info = PdfInfo(pdf);
    EXPECT_TRUE(info.contains(QRegularExpression(u"Page size: +841\\.\\d+ x 595"_s)))
        << info.toStdString();

    const QStringList pages = PdfPages(pdf);
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].contains(
        QRegularExpression(u"o\\. : +Žofie +m\\. : 0 +o\\. : +Žofie +m\\. : \\d+\n"_s)))
        << "no second column beside the first dog:\n"
        << pages[0].toStdString();
    EXPECT_TRUE(pages[1].contains(u"Poslední strana")) << pages[1].toStdString();
    EXPECT_TRUE(PdfFonts(pdf).contains(u"Bold"));
}

} // namespace lorvo::test
