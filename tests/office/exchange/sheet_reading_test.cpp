#include "office/exchange/sheet_files.h"

#include "platform/values/errors.h"

#include <QDir>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <zip.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// An OpenDocument spreadsheet of these sheets, each with one cell that bears the sheet's number.
void WriteSheets(const QString& path, const QStringList& names) {
    QString content = u"<office:document-content"
                      " xmlns:office='urn:oasis:names:tc:opendocument:xmlns:office:1.0'"
                      " xmlns:table='urn:oasis:names:tc:opendocument:xmlns:table:1.0'"
                      " xmlns:text='urn:oasis:names:tc:opendocument:xmlns:text:1.0'>"
                      "<office:body><office:spreadsheet>"_s;
    for (qsizetype i = 0; i < names.size(); ++i)
        content += u"<table:table table:name='%1'><table:table-row><table:table-cell"
                   " office:value-type='string'><text:p>%2. list</text:p></table:table-cell>"
                   "</table:table-row></table:table>"_s.arg(names[i])
                       .arg(i + 1);
    const QByteArray bytes =
        (content + u"</office:spreadsheet></office:body></office:document-content>"_s).toUtf8();
    zip_t* zip = zip_open(path.toUtf8().constData(), ZIP_CREATE, nullptr);
    ASSERT_TRUE(zip);
    zip_source_t* source =
        zip_source_buffer(zip, bytes.constData(), static_cast<zip_uint64_t>(bytes.size()), 0);
    EXPECT_GE(zip_file_add(zip, "content.xml", source, ZIP_FL_ENC_UTF_8), 0);
    ASSERT_EQ(zip_close(zip), 0);
}

class SheetReading : public ::testing::Test {
  protected:
    SheetReading() { qputenv("TMPDIR", QFile::encodeName(folder.path())); }
    ~SheetReading() override { qputenv("TMPDIR", before); }

    const QByteArray before = QFile::encodeName(QDir::tempPath());
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.ods"_s);
};

TEST_F(SheetReading, TheFirstSheetIsRead) {
    WriteSheets(path, {u"Psi"_s, u"Majitelé"_s});
    EXPECT_EQ(SheetRows(path), std::vector<QStringList>{{u"1. list"_s}});
}

TEST_F(SheetReading, ASpreadsheetWithoutASheetHasNoRows) {
    WriteSheets(path, {});
    EXPECT_TRUE(SheetRows(path).empty());
}

TEST_F(SheetReading, TheNameOfASheetLeadsIntoNoOtherFolder) {
    for (const QString& name : {u"../outside"_s, u"a/b"_s, u"."_s, u".."_s, u"Psi: květen"_s}) {
        WriteSheets(path, {u"Psi"_s, name});
        if (name.contains(u'/'))
            EXPECT_THROW(SheetRows(path), PlatformError) << name.toStdString();
        else
            EXPECT_EQ(SheetRows(path), std::vector<QStringList>{{u"1. list"_s}});
        QFile::remove(path);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                  QStringList())
            << name.toStdString();
    }
}

TEST_F(SheetReading, WithoutATemporaryFolderASheetIsNeitherReadNorWritten) {
    WriteSheets(path, {u"Psi"_s});
    const QString file = folder.filePath(u"file"_s);
    ASSERT_TRUE(QFile::copy(path, file));
    qputenv("TMPDIR", QFile::encodeName(file));
    for (const auto& attempt :
         {std::function<void()>([this] { static_cast<void>(SheetRows(path)); }),
          std::function<void()>([] { static_cast<void>(SheetBytes({})); })})
        try {
            attempt();
            ADD_FAILURE() << "no failure";
        } catch (const PlatformError& failure) {
            EXPECT_NE(std::string(failure.what()).find(file.toStdString()), std::string::npos)
                << failure.what();
        }
}

} // namespace
} // namespace lorvo
