#include "support/office_program.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

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
    QStringList pages = OutputOf(u"pdftotext"_s, arguments + QStringList{u"-"_s}).split(u'\f');
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
        return {u"Liberation"_s, u"truetype/liberation"_s, u"Liberation Sans"_s,
                u"Liberation Serif"_s};
    case FontSet::Urw:
        return {u"URW"_s, u"opentype/urw-base35"_s, u"Nimbus Sans"_s, u"Nimbus Roman"_s};
    case FontSet::DejaVu:
        break;
    }
    return {u"DejaVu"_s, u"truetype/dejavu"_s, u"DejaVu Sans"_s, u"DejaVu Serif"_s};
}

/// What a system says of a font that it lacks.
QString StandIn(const QString& family, const QString& other) {
    return u"<alias binding=\"same\"><family>%1</family>"
           "<prefer><family>%2</family></prefer></alias>"_s.arg(family, other);
}

/// A configuration that knows the fonts of one folder, and its path.
QString FontConfiguration(const QString& folder, FontSet fonts) {
    const FontSource source = SourceOf(fonts);
    const QString fontFolder = u"/usr/share/fonts/"_s + source.folder;
    EXPECT_TRUE(QFileInfo::exists(fontFolder)) << "no fonts in " << fontFolder.toStdString();
    QFile file(u"%1/%2.conf"_s.arg(folder, source.name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    QString text = u"<?xml version=\"1.0\"?><fontconfig><dir>%1</dir>"
                   "<cachedir>%2/%3</cachedir>"_s.arg(fontFolder, folder, source.name);
    for (const char* family : {"Arial", "Tahoma", "sans-serif"})
        text += StandIn(QString::fromUtf8(family), source.sans);
    for (const char* family : {"Times New Roman", "serif"})
        text += StandIn(QString::fromUtf8(family), source.serif);
    file.write((text + u"</fontconfig>\n"_s).toUtf8());
    return file.fileName();
}

} // namespace

bool HasOfficeProgram() {
    return !QStandardPaths::findExecutable(u"soffice"_s).isEmpty();
}

QString NameOf(FontSet fonts) {
    return SourceOf(fonts).name;
}

QString PdfOf(const QString& document, const QString& profileFolder, FontSet fonts) {
    const QFileInfo info(document);
    MakePdfs({document}, info.path(), profileFolder, fonts);
    return info.path() + u'/' + info.completeBaseName() + u".pdf"_s;
}

void MakePdfs(const QStringList& documents, const QString& folder, const QString& profileFolder,
              FontSet fonts) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"FONTCONFIG_FILE"_s, FontConfiguration(profileFolder, fonts));
    OutputOf(u"soffice"_s,
             QStringList{u"-env:UserInstallation=file://%1/profile"_s.arg(profileFolder),
                         u"--headless"_s, u"--convert-to"_s, u"pdf"_s, u"--outdir"_s, folder} +
                 documents,
             environment);
}

QString PdfInfo(const QString& pdf) {
    return OutputOf(u"pdfinfo"_s, {pdf});
}

QString PdfFonts(const QString& pdf) {
    return OutputOf(u"pdffonts"_s, {pdf});
}

QStringList PdfColumns(const QString& pdf, int width, int columns) {
    QList<QStringList> texts;
    for (int column = 0; column < columns; ++column)
        texts << PagesOf({u"-layout"_s, u"-r"_s, u"72"_s, u"-x"_s, QString::number(column * width),
                          u"-y"_s, u"0"_s, u"-W"_s, QString::number(width), u"-H"_s, u"5000"_s,
                          pdf});
    QStringList inOrder;
    for (qsizetype page = 0; page < texts.first().size(); ++page) {
        for (const QStringList& column : texts)
            inOrder << column[page];
    }
    return inOrder;
}

QStringList PdfPages(const QString& pdf) {
    return PagesOf({u"-layout"_s, pdf});
}

} // namespace lorvo::test
