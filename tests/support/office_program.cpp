#include "support/office_program.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace lorvo::test {

namespace {

constexpr int kTimeout = 120000;

QString
OutputOf(const QString& program, const QStringList& arguments,
         const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(kTimeout)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList PagesOf(const QStringList& arguments) {
    QStringList pages =
        OutputOf(QStringLiteral("pdftotext"), arguments + QStringList{QStringLiteral("-")})
            .split(u'\f');
    pages.removeLast(); // the text behind the last page's end
    return pages;
}

struct FontSource {
    QString name;
    QString folder;
    QString sans;
    QString serif;
};

FontSource SourceOf(FontSet fonts) {
    switch (fonts) {
    case FontSet::Liberation:
        return {QStringLiteral("Liberation"), QStringLiteral("truetype/liberation"),
                QStringLiteral("Liberation Sans"), QStringLiteral("Liberation Serif")};
    case FontSet::Urw:
        return {QStringLiteral("URW"), QStringLiteral("opentype/urw-base35"),
                QStringLiteral("Nimbus Sans"), QStringLiteral("Nimbus Roman")};
    case FontSet::DejaVu:
        break;
    }
    return {QStringLiteral("DejaVu"), QStringLiteral("truetype/dejavu"),
            QStringLiteral("DejaVu Sans"), QStringLiteral("DejaVu Serif")};
}

/// What a system says of a font that it lacks.
QString StandIn(const QString& family, const QString& other) {
    return QStringLiteral("<alias binding=\"same\"><family>%1</family>"
                          "<prefer><family>%2</family></prefer></alias>")
        .arg(family, other);
}

/// A configuration that knows the fonts of one folder, and its path.
QString FontConfiguration(const QString& folder, FontSet fonts) {
    const FontSource source = SourceOf(fonts);
    const QString fontFolder = QStringLiteral("/usr/share/fonts/") + source.folder;
    EXPECT_TRUE(QFileInfo::exists(fontFolder)) << "no fonts in " << fontFolder.toStdString();
    QFile file(QStringLiteral("%1/%2.conf").arg(folder, source.name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    QString text = QStringLiteral("<?xml version=\"1.0\"?><fontconfig><dir>%1</dir>"
                                  "<cachedir>%2/%3</cachedir>")
                       .arg(fontFolder, folder, source.name);
    for (const char* family : {"Arial", "Tahoma", "sans-serif"})
        text += StandIn(QString::fromUtf8(family), source.sans);
    for (const char* family : {"Times New Roman", "serif"})
        text += StandIn(QString::fromUtf8(family), source.serif);
    file.write((text + QStringLiteral("</fontconfig>\n")).toUtf8());
    return file.fileName();
}

} // namespace

bool HasOfficeProgram() {
    return !QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty();
}

QString NameOf(FontSet fonts) {
    return SourceOf(fonts).name;
}

QString PdfOf(const QString& document, const QString& profileFolder, FontSet fonts) {
    const QFileInfo info(document);
    MakePdfs({document}, info.path(), profileFolder, fonts);
    return info.path() + u'/' + info.completeBaseName() + QStringLiteral(".pdf");
}

void MakePdfs(const QStringList& documents, const QString& folder, const QString& profileFolder,
              FontSet fonts) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("FONTCONFIG_FILE"), FontConfiguration(profileFolder, fonts));
    OutputOf(
        QStringLiteral("soffice"),
        QStringList{QStringLiteral("-env:UserInstallation=file://%1/profile").arg(profileFolder),
                    QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                    QStringLiteral("pdf"), QStringLiteral("--outdir"), folder} +
            documents,
        environment);
}

QString PdfInfo(const QString& pdf) {
    return OutputOf(QStringLiteral("pdfinfo"), {pdf});
}

QString PdfFonts(const QString& pdf) {
    return OutputOf(QStringLiteral("pdffonts"), {pdf});
}

QStringList PdfColumns(const QString& pdf, int width, int columns) {
    QList<QStringList> texts;
    for (int column = 0; column < columns; ++column)
        texts << PagesOf({QStringLiteral("-layout"), QStringLiteral("-r"), QStringLiteral("72"),
                          QStringLiteral("-x"), QString::number(column * width),
                          QStringLiteral("-y"), QStringLiteral("0"), QStringLiteral("-W"),
                          QString::number(width), QStringLiteral("-H"), QStringLiteral("5000"),
                          pdf});
    QStringList inOrder;
    for (qsizetype page = 0; page < texts.first().size(); ++page) {
        for (const QStringList& column : texts)
            inOrder << column[page];
    }
    return inOrder;
}

QStringList PdfPages(const QString& pdf) {
    return PagesOf({QStringLiteral("-layout"), pdf});
}

} // namespace lorvo::test
