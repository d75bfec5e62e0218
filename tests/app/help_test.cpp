#include "app/help.h"

#include "support/recording_platform.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

class HelpTest : public ::testing::Test {
  protected:
    QString Path(const QString& name) const { return platform.ProgramFolder() + u'/' + name; }
    void PutPage(const QString& name) {
        ASSERT_TRUE(QDir(platform.ProgramFolder()).mkpath(u"Nápověda"_qs));
        QFile page(Path(u"Nápověda/"_qs + name));
        ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    }

    test::RecordingPlatform platform;
};

TEST_F(HelpTest, IsOpenedWhole) {
    PutPage(u"index.html"_qs);
    OpenHelp();
    EXPECT_EQ(platform.openedFiles, QStringList(Path(u"Lorvo.chm"_qs)));
}

TEST_F(HelpTest, WithoutAViewerItsPagesAreOpened) {
    platform.filesOpen = false;
    PutPage(u"index.html"_qs);
    OpenHelp();
    EXPECT_EQ(platform.openedFiles,
              QStringList({Path(u"Lorvo.chm"_qs), Path(u"Nápověda/index.html"_qs)}));
}

TEST_F(HelpTest, WithoutViewerAndPagesTheDesktopSaysWhatItCan) {
    platform.filesOpen = false;
    OpenHelp();
    EXPECT_EQ(platform.openedFiles, QStringList(Path(u"Lorvo.chm"_qs)));
}

TEST_F(HelpTest, AWindowHasItsPageOrTheFirstOne) {
    PutPage(u"index.html"_qs);
    PutPage(u"fm_Dog.html"_qs);
    OpenHelpOn(u"fm_Dog"_qs);
    OpenHelpOn(u"frmPlatba"_qs);
    EXPECT_EQ(platform.openedFiles,
              QStringList({Path(u"Nápověda/fm_Dog.html"_qs), Path(u"Nápověda/index.html"_qs)}));
}

} // namespace
} // namespace lorvo
