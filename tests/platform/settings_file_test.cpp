#include "platform/real_services.h"
#include "support/print_qt.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString& SysKey() {
    static const QString key = u"Software\\Hollow Peak\\Lorvo\\Sys"_s;
    return key;
}

class SettingsFileTest : public ::testing::Test {
  protected:
    std::unique_ptr<SettingsTree> Open() { return MakeSettingsTree(folder_.path()); }
    void Put(const QByteArray& bytes) {
        QFile file(folder_.filePath(u"Lorvo.settings"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder_;
};

TEST_F(SettingsFileTest, OneFileInTheFolderOfTheProgram) {
    Open()->Write(SysKey(), u"ShowGrid"_s, u"1"_s);
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList(u"Lorvo.settings"_s));
}

TEST_F(SettingsFileTest, ValuesOfAnotherTypeReadAsEmpty) {
    Put("[Software]\nHollow%20Peak\\Lorvo\\Sys\\A=1, 2\nHollow%20Peak\\Lorvo\\Sys\\B=@Size(1 2)\n"
        "Hollow%20Peak\\Lorvo\\Sys\\C=3\n");
    const auto settings = Open();
    EXPECT_EQ(settings->Read(SysKey(), u"A"_s), QString());
    EXPECT_EQ(settings->Read(SysKey(), u"B"_s), QString());
    EXPECT_EQ(settings->Read(SysKey(), u"C"_s), u"3"_s);
}

/// What a program that was killed, or the folder's old computer, has left must not be waited for.
class SettingsLockTest : public SettingsFileTest,
                         public ::testing::WithParamInterface<const char*> {};

TEST_P(SettingsLockTest, IsRemovedWhenNobodyHoldsIt) {
    const QString lock = folder_.filePath(u"Lorvo.settings.lock"_s);
    {
        const auto settings = Open();
        QFile file(lock);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(GetParam());
        file.close();
        settings->Write(SysKey(), u"ShowGrid"_s, u"1"_s);
        EXPECT_FALSE(QFile::exists(lock));
    }
    EXPECT_EQ(Open()->Read(SysKey(), u"ShowGrid"_s), u"1"_s);
}

INSTANTIATE_TEST_SUITE_P(Locks, SettingsLockTest,
                         ::testing::Values("", "12", "1\nLorvo\nanother-computer\n"));

TEST_F(SettingsFileTest, ALockThatAnotherProgramHoldsStays) {
    const QString path = folder_.filePath(u"Lorvo.settings.lock"_s);
    const auto settings = Open();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    // The first process runs as long as the system does.
    file.write("1\ninit\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    file.close();
    settings->Write(SysKey(), u"ShowGrid"_s, u"1"_s);
    EXPECT_TRUE(QFile::exists(path));
    QFile::remove(path);
}

TEST_F(SettingsFileTest, ABrokenFileReadsAsEmpty) {
    QByteArray bytes("[Soft\nware==\n\0\xff\xfe]]\n@@=\"", 23);
    for (int byte = 255; byte >= 0; --byte)
        bytes.append(static_cast<char>(byte));
    Put(bytes);
    const auto settings = Open();
    EXPECT_EQ(settings->Read(SysKey(), u"ShowGrid"_s), QString());
    settings->Write(SysKey(), u"ShowGrid"_s, u"1"_s);
    EXPECT_EQ(settings->Read(SysKey(), u"ShowGrid"_s), u"1"_s);
}

TEST_F(SettingsFileTest, WhereNothingCanBeWrittenEveryValueStaysEmpty) {
    QFile blocker(folder_.filePath(u"file"_s));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    const auto settings = MakeSettingsTree(blocker.fileName());
    settings->Write(SysKey(), u"ShowGrid"_s, u"1"_s);
    EXPECT_EQ(settings->Read(SysKey(), u"ShowGrid"_s), QString());
}

} // namespace
} // namespace lorvo
