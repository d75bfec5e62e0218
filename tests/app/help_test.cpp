#include "app/help.h"

#include "support/recording_platform.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class HelpTest : public ::testing::Test {
  protected:
    QString Path(const QString& name) const { return platform.ProgramFolder() + u'/' + name; }
    void PutPage(const QString& name) {
        ASSERT_TRUE(QDir(platform.ProgramFolder()).mkpath(u"Nápověda"_s));
        QFile page(Path(u"Nápověda/"_s + name));
        ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    }

    test::RecordingPlatform platform;
};

TEST_F(HelpTest, IsOpenedWhole) {
    PutPage(u"index.html"_s);
    OpenHelp();
    EXPECT_EQ(platform.openedFiles, QStringList(Path(u"Lorvo.chm"_s)));
}

TEST_F(HelpTest, WithoutAViewerItsPagesAreOpened) {
    platform.filesOpen = false;
    PutPage(u"index.html"_s);
    OpenHelp();
    EXPECT_EQ(platform.openedFiles,
              QStringList({Path(u"Lorvo.chm"_s), Path(u"Nápověda/index.html"_s)}));
}

TEST_F(HelpTest, WithoutViewerAndPagesTheDesktopSaysWhatItCan) {
    platform.filesOpen = false;
    OpenHelp();
    EXPECT_EQ(platform.openedFiles, QStringList(Path(u"Lorvo.chm"_s)));
}

TEST_F(HelpTest, AWindowHasItsPageOrTheFirstOne) {
    PutPage(u"index.html"_s);
    PutPage(u"fm_Dog.html"_s);
    OpenHelpOn(u"fm_Dog"_s);
    OpenHelpOn(u"frmPlatba"_s);
    EXPECT_EQ(platform.openedFiles,
              QStringList({Path(u"Nápověda/fm_Dog.html"_s), Path(u"Nápověda/index.html"_s)}));
}

} // namespace
} // namespace lorvo
