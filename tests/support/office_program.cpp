#include "support/office_program.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace lorvo::test {

namespace {

constexpr int kTimeout = 120000;

QString OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(kTimeout)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

bool HasOfficeProgram() {
    return !QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty();
}

QString PdfOf(const QString& document, const QString& profileFolder) {
    const QFileInfo info(document);
    MakePdfs({document}, info.path(), profileFolder);
    return info.path() + u'/' + info.completeBaseName() + QStringLiteral(".pdf");
}

void MakePdfs(const QStringList& documents, const QString& folder, const QString& profileFolder) {
    OutputOf(
        QStringLiteral("soffice"),
        QStringList{QStringLiteral("-env:UserInstallation=file://%1/profile").arg(profileFolder),
                    QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                    QStringLiteral("pdf"), QStringLiteral("--outdir"), folder} +
            documents);
}

QString PdfInfo(const QString& pdf) {
    return OutputOf(QStringLiteral("pdfinfo"), {pdf});
}

QString PdfFonts(const QString& pdf) {
    return OutputOf(QStringLiteral("pdffonts"), {pdf});
}

QStringList PdfPages(const QString& pdf) {
    QStringList pages =
        OutputOf(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")})
            .split(u'\f');
    pages.removeLast(); // the text behind the last page's end
    return pages;
}

} // namespace lorvo::test
