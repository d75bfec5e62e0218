// A document seen through the eyes of an office program that knows nothing of its writer.

#include "platform/docx/document_parts.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace lorvo::test {

namespace {

QString OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(120000)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// Lays the document out and returns the path of the PDF beside it.
QString PdfOf(const QString& document, const QString& profileFolder) {
    const QFileInfo info(document);
    OutputOf(QStringLiteral("soffice"),
             {QStringLiteral("-env:UserInstallation=file://%1/profile").arg(profileFolder),
              QStringLiteral("--headless"), QStringLiteral("--convert-to"), QStringLiteral("pdf"),
              QStringLiteral("--outdir"), info.path(), document});
    return info.path() + u'/' + info.completeBaseName() + QStringLiteral(".pdf");
}

void TypeTwoColumnPages(WordProcessor& word) {
    word.SetOrientation(PageOrientation::Landscape);
    word.SetFontName(QStringLiteral("Arial"));
    word.SetBold(FontSwitch::On);
    word.TypeText(QStringLiteral("Kruh 1 – ovčáci"));
    word.TypeParagraph();
    word.SetBold(FontSwitch::Off);
    for (int i = 0; i < 40; ++i)
        word.TypeText(QStringLiteral("  o. :\tŽofie\tm. : %1\n").arg(i));
    word.InsertPageBreak();
    word.TypeText(QStringLiteral("Poslední strana"));
    word.HomeKeyStory();
    word.WholeStory();
    word.AddTextColumn(CentimetersToPoints(11.72), CentimetersToPoints(1.25));
    word.AddTabStop(CentimetersToPoints(1.0));
    word.AddTabStop(CentimetersToPoints(6.0));
    word.HomeKeyStory();
}

} // namespace

TEST(DocxRendering, AnOfficeProgramLaysTheDocumentOutAsTyped) {
    if (QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty())
        GTEST_SKIP() << "no office program on this machine";
    DocumentDesk desk;
    const QString pdf = PdfOf(desk.Document(TypeTwoColumnPages), desk.folder.path());

    const QString info = OutputOf(QStringLiteral("pdfinfo"), {pdf});
    EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Pages: +2\n"))))
        << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Page size: +841\\.\\d+ x 595"))))
        << info.toStdString();

    const QString layout = OutputOf(QStringLiteral("pdftotext"),
                                    {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    const QStringList pages = layout.split(u'\f');
    EXPECT_TRUE(pages[0].contains(QRegularExpression(
        QStringLiteral("o\\. : +Žofie +m\\. : 0 +o\\. : +Žofie +m\\. : \\d+\n"))))
        << "no second column beside the first dog:\n"
        << layout.toStdString();
    EXPECT_TRUE(pages[1].contains(u"Poslední strana")) << layout.toStdString();

    const QString fonts = OutputOf(QStringLiteral("pdffonts"), {pdf});
    EXPECT_TRUE(fonts.contains(u"Bold")) << fonts.toStdString();
}

} // namespace lorvo::test
