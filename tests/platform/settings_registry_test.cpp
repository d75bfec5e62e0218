#include "platform/real_services.h"
#include "support/print_qt.h"

#include <QByteArray>
#include <gtest/gtest.h>
#include <windows.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr wchar_t kPath[] = L"Software\\Hollow Peak\\Lorvo registry test";

QString Path() {
    return QString::fromWCharArray(kPath);
}

struct RawValue {
    DWORD type = REG_NONE;
    QByteArray bytes;
};

/// A key under the machine's root, as other programs see it; gone after the test.
class SettingsRegistryTest : public ::testing::Test {
  protected:
    ~SettingsRegistryTest() override { RegDeleteTreeW(HKEY_LOCAL_MACHINE, kPath); }

    static bool Exists() {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kPath, 0, KEY_READ, &key) != ERROR_SUCCESS)
            return false;
        RegCloseKey(key);
        return true;
    }
    static RawValue Raw(const wchar_t* name) {
        RawValue value;
        DWORD size = 0;
        HKEY key = nullptr;
        EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, kPath, 0, KEY_READ, &key), ERROR_SUCCESS);
        RegQueryValueExW(key, name, nullptr, &value.type, nullptr, &size);
        value.bytes.resize(static_cast<qsizetype>(size));
        RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(value.bytes.data()),
                         &size);
        RegCloseKey(key);
        return value;
    }
    static void Put(const wchar_t* name, DWORD type, const QByteArray& bytes) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, kPath, 0, nullptr, 0, KEY_WRITE, nullptr,
                                  &key, nullptr),
                  ERROR_SUCCESS);
        RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.constData()),
                       static_cast<DWORD>(bytes.size()));
        RegCloseKey(key);
    }

    std::unique_ptr<SettingsTree> settings_ = MakeSettingsTree(QString());
};

TEST_F(SettingsRegistryTest, ATextIsStoredInItsOwnLengthWithoutANul) {
    settings_->Write(Path(), u"Šířka 1"_s, u"12,5"_s);
    const RawValue value = Raw(L"Šířka 1");
    EXPECT_EQ(value.type, DWORD{REG_SZ});
    EXPECT_EQ(value.bytes, QByteArray("1\0"
                                      "2\0"
                                      ",\0"
                                      "5\0",
                                      8));
    settings_->Write(Path(), u"Prázdné"_s, QString());
    EXPECT_EQ(Raw(L"Prázdné").type, DWORD{REG_SZ});
    EXPECT_EQ(Raw(L"Prázdné").bytes, QByteArray());
}

TEST_F(SettingsRegistryTest, ATextReadsWithAndWithoutItsNul) {
    Put(L"Without", REG_SZ, QByteArray("a\0b\0", 4));
    Put(L"With", REG_SZ, QByteArray("a\0b\0\0\0c\0", 8));
    EXPECT_EQ(settings_->Read(Path(), u"Without"_s), u"ab"_s);
    EXPECT_EQ(settings_->Read(Path(), u"With"_s), u"ab"_s);
}

TEST_F(SettingsRegistryTest, ABinaryValueReadsAsTheNumberInItsFirstTwoBytes) {
    Put(L"Four", REG_BINARY, QByteArray("\x39\x30\x01\x00", 4));
    Put(L"Two", REG_BINARY, QByteArray("\xff\xff", 2));
    Put(L"One", REG_BINARY, QByteArray("\x07", 1));
    Put(L"None", REG_BINARY, QByteArray());
    EXPECT_EQ(settings_->Read(Path(), u"Four"_s), u"12345"_s);
    EXPECT_EQ(settings_->Read(Path(), u"Two"_s), u"-1"_s);
    EXPECT_EQ(settings_->Read(Path(), u"One"_s), u"7"_s);
    EXPECT_EQ(settings_->Read(Path(), u"None"_s), u"0"_s);
}

TEST_F(SettingsRegistryTest, ValuesOfAnotherTypeReadAsEmpty) {
    Put(L"Number", REG_DWORD, QByteArray("\x01\0\0\0", 4));
    Put(L"Expanded", REG_EXPAND_SZ, QByteArray("1\0", 2));
    EXPECT_EQ(settings_->Read(Path(), u"Number"_s), QString());
    EXPECT_EQ(settings_->Read(Path(), u"Expanded"_s), QString());
}

TEST_F(SettingsRegistryTest, ReadingMakesNoKey) {
    EXPECT_EQ(settings_->Read(Path(), u"A"_s), QString());
    EXPECT_FALSE(Exists());
    settings_->Write(Path(), u"A"_s, u"1"_s);
    EXPECT_TRUE(Exists());
}

TEST_F(SettingsRegistryTest, WhatMayNotBeWrittenIsLeftOutSilently) {
    const QString forbidden = QString(300, u'x'); // longer than the name of a key may be
    settings_->Write(forbidden, u"A"_s, u"1"_s);
    EXPECT_EQ(settings_->Read(forbidden, u"A"_s), QString());
}

} // namespace
} // namespace lorvo
