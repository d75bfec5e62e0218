#include "platform/real_services.h"
#include "support/print_qt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class IniFilesTest : public ::testing::Test {
  protected:
    void Put(const QByteArray& bytes) {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Bytes() {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString Read(const QString& section = u"Main"_s, const QString& key = u"Ignorovat tridy"_s) {
        return ini_->Read(section, key, path_);
    }
    bool Write(const QString& text, const QString& section = u"Main"_s,
               const QString& key = u"Ignorovat tridy"_s) {
        return ini_->Write(section, key, text, path_);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"Lorvosys.ini"_s);
    std::unique_ptr<IniFiles> ini_ = MakeIniFiles();
};

TEST_F(IniFilesTest, WhatIsMissingReadsAsEmpty) {
    EXPECT_EQ(Read(), QString());
    Put("[Other]\r\nIgnorovat tridy=1\r\n[Main]\r\nOther=2\r\n");
    EXPECT_EQ(Read(), QString());
    EXPECT_EQ(Read(u"Missing"_s), QString());
}

TEST_F(IniFilesTest, SectionAndKeyAreFoundWithoutRegardToCase) {
    Put(" [ MAIN ] \n  ignorovat TRIDY  =  1  \n");
    EXPECT_EQ(Read(), u"1"_s);
}

TEST_F(IniFilesTest, QuotesAroundAValueAreTakenOff) {
    Put("[Main]\nA=\" x \"\nB='y'\nC=\"z'\nD=\"\nE=\"\"\n");
    EXPECT_EQ(Read(u"Main"_s, u"A"_s), u" x "_s);
    EXPECT_EQ(Read(u"Main"_s, u"B"_s), u"y"_s);
    EXPECT_EQ(Read(u"Main"_s, u"C"_s), u"\"z'"_s);
    EXPECT_EQ(Read(u"Main"_s, u"D"_s), u"\""_s);
    EXPECT_EQ(Read(u"Main"_s, u"E"_s), QString());
}

TEST_F(IniFilesTest, AValueKeepsItsEqualsSignsAndItsLength) {
    Put("[Main]\nA=b=c\nLong=" + QByteArray(300, 'x') + "\n");
    EXPECT_EQ(Read(u"Main"_s, u"A"_s), u"b=c"_s);
    EXPECT_EQ(Read(u"Main"_s, u"Long"_s), QString(254, u'x'));
}

TEST_F(IniFilesTest, WritesANewFileWithTheLineEndsOfSuchFiles) {
    EXPECT_TRUE(Write(u"1"_s));
    EXPECT_EQ(Bytes(), QByteArray("[Main]\r\nIgnorovat tridy=1\r\n"));
    EXPECT_EQ(Read(), u"1"_s);
}

TEST_F(IniFilesTest, AWriteTouchesOneLineOnly) {
    Put("; pozn\xe1mka \x81\x98\n\n[Jin\xfd]\nIgnorovat tridy=0\n\n[main]\n # a\nA = 1\n"
        "IGNOROVAT tridy = 0\nB=2\n\n[Konec]\r\nC=3");
    EXPECT_TRUE(Write(u"1"_s));
    EXPECT_EQ(Bytes(),
              QByteArray("; pozn\xe1mka \x81\x98\n\n[Jin\xfd]\nIgnorovat tridy=0\n\n[main]\n # a\n"
                         "A = 1\nIGNOROVAT tridy =1\nB=2\n\n[Konec]\r\nC=3"));
}

TEST_F(IniFilesTest, ANewKeyStandsAtTheEndOfItsSection) {
    Put("[Main]\nA=1\n\n[Konec]\nB=2\n");
    EXPECT_TRUE(Write(u"1"_s));
    EXPECT_EQ(Bytes(), QByteArray("[Main]\nA=1\nIgnorovat tridy=1\n\n[Konec]\nB=2\n"));
}

TEST_F(IniFilesTest, ANewSectionStandsAtTheEndOfTheFile) {
    Put("[Konec]\nB=2");
    EXPECT_TRUE(Write(u"č"_s, u"Main"_s, u"Klíč"_s));
    EXPECT_EQ(Bytes(), QByteArray("[Konec]\nB=2\n[Main]\nKl\xed\xe8=\xe8\n"));
    EXPECT_EQ(Read(u"main"_s, u"KLÍČ"_s), u"č"_s);
}

TEST_F(IniFilesTest, AUtf8MarkStaysAndHidesNothing) {
    Put("\xEF\xBB\xBF[Main]\r\nIgnorovat tridy=1\r\nA=\xC4\x8D\r\n");
    EXPECT_EQ(Read(), u"1"_s);
    EXPECT_TRUE(Write(u"0"_s));
    EXPECT_EQ(Bytes(), QByteArray("\xEF\xBB\xBF[Main]\r\nIgnorovat tridy=0\r\nA=\xC4\x8D\r\n"));
}

TEST_F(IniFilesTest, AUtf16FileStaysUtf16) {
    for (const bool little : {true, false}) {
        const auto bytes = [little](const QString& text) {
            QByteArray result(little ? "\xFF\xFE" : "\xFE\xFF");
            for (const QChar c : text) {
                result.append(static_cast<char>(little ? c.cell() : c.row()));
                result.append(static_cast<char>(little ? c.row() : c.cell()));
            }
            return result;
        };
        Put(bytes(u"[Main]\r\nIgnorovat tridy=1\r\nA=ж\r\n"_s));
        EXPECT_EQ(Read(), u"1"_s);
        EXPECT_TRUE(Write(u"0"_s));
        EXPECT_EQ(Bytes(), bytes(u"[Main]\r\nIgnorovat tridy=0\r\nA=ж\r\n"_s));
    }
}

TEST_F(IniFilesTest, BrokenUtf16IsLeftAlone) {
    const QByteArray broken("\xFF\xFE[\0M", 5);
    Put(broken);
    EXPECT_EQ(Read(), QString());
    EXPECT_FALSE(Write(u"1"_s));
    EXPECT_EQ(Bytes(), broken);
}

TEST_F(IniFilesTest, RefusesWhatCannotBeWritten) {
    EXPECT_FALSE(ini_->Write(u"Main"_s, u"A"_s, u"1"_s, folder_.filePath(u"missing/x.ini"_s)));
    EXPECT_FALSE(ini_->Write(u"Main"_s, u"A"_s, u"1"_s, folder_.path()));
    EXPECT_FALSE(Write(u"a\nb"_s));
    EXPECT_TRUE(Bytes().isEmpty());
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList());
}

TEST_F(IniFilesTest, AnyBytesAreReadWithoutHarm) {
    QByteArray all("[Main]\r\r\n\n[\n]\n=\n=x\nA\n");
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    Put(all);
    EXPECT_EQ(Read(), QString());
    EXPECT_TRUE(Write(u"1"_s));
    EXPECT_EQ(Read(), u"1"_s);
    EXPECT_EQ(Bytes().size(), all.size() + 19);
}

} // namespace
} // namespace lorvo
