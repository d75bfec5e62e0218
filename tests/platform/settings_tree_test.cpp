#include "platform/real_services.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Beside the program's own keys: where there is a registry it is the machine's.
QString TestKey() {
    return u"Software\\Hollow Peak\\Lorvo test\\Sys"_s;
}

class SettingsTreeTest : public ::testing::Test {
  protected:
    std::unique_ptr<SettingsTree> Open() { return MakeSettingsTree(folder_.path()); }

    QTemporaryDir folder_;
};

TEST_F(SettingsTreeTest, AMissingValueReadsAsEmpty) {
    EXPECT_EQ(Open()->Read(TestKey(), u"NeverWritten"_s), QString());
}

TEST_F(SettingsTreeTest, ValuesOutliveTheProgram) {
    const QString odd = u" a,b;c=\"d\" \\ ěšč @x % \n1"_s;
    {
        const auto settings = Open();
        settings->Write(TestKey(), u"ShowGrid"_s, u"1"_s);
        settings->Write(TestKey(), u"ExpandedItems"_s, odd);
        settings->Write(TestKey() + u"\\ColWidths\\fm_Dog\\lvwDogs"_s, u"ColWidth 1"_s, u"120,5"_s);
        settings->Write(TestKey(), u"RememberTree"_s, QString());
    }
    const auto settings = Open();
    EXPECT_EQ(settings->Read(TestKey(), u"ShowGrid"_s), u"1"_s);
    EXPECT_EQ(settings->Read(TestKey(), u"ExpandedItems"_s), odd);
    EXPECT_EQ(settings->Read(TestKey() + u"\\ColWidths\\fm_Dog\\lvwDogs"_s, u"ColWidth 1"_s),
              u"120,5"_s);
    EXPECT_EQ(settings->Read(TestKey(), u"RememberTree"_s), QString());
}

TEST_F(SettingsTreeTest, ATextIsCutAtItsFirstNul) {
    const auto settings = Open();
    settings->Write(TestKey(), u"A"_s, u"ab"_s + QChar(u'\0') + u"cd"_s);
    EXPECT_EQ(settings->Read(TestKey(), u"A"_s), u"ab"_s);
}

} // namespace
} // namespace lorvo
