#include "support/recording_platform.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

MessageAnswer Ask(const QString& text) {
    return ThePlatform().messages->Show(text, MessageIcon::Question, MessageButtons::YesNoCancel,
                                        u"Lorvo"_s);
}

TEST(RecordingPlatform, AnswersTheMessagesThatAreExpectedInTheirOrder) {
    RecordingPlatform platform;
    bool open = false;
    platform.ExpectMessage(u"První?"_s, MessageAnswer::Yes, MessageIcon::Question,
                           MessageButtons::YesNoCancel, u"Lorvo"_s, [&] { open = true; });
    platform.ExpectMessage(u"Druhá?"_s, MessageAnswer::No);
    EXPECT_EQ(Ask(u"První?"_s), MessageAnswer::Yes);
    EXPECT_TRUE(open);
    EXPECT_EQ(Ask(u"Druhá?"_s), MessageAnswer::No);
    ASSERT_EQ(platform.messages.size(), 2u);
    EXPECT_EQ(platform.messages[1].text, u"Druhá?"_s);
}

TEST(RecordingPlatform, FailsOnAMessageThatNobodyExpected) {
    EXPECT_NONFATAL_FAILURE(
        {
            RecordingPlatform platform;
            EXPECT_EQ(Ask(u"Odkud?"_s), MessageAnswer::Cancel);
        },
        "nobody expected the message: Odkud?");
}

TEST(RecordingPlatform, FailsOnAMessageThatNeverCame) {
    EXPECT_NONFATAL_FAILURE(
        {
            RecordingPlatform platform;
            platform.ExpectMessage(u"Kde je?"_s);
        },
        "never came: Kde je?");
}

TEST(RecordingPlatform, FailsOnAnotherTextIconOrTitle) {
    EXPECT_NONFATAL_FAILURE(
        {
            RecordingPlatform platform;
            platform.ExpectMessage(u"Jiná?"_s);
            Ask(u"Tato?"_s);
        },
        "Jiná?");
    EXPECT_NONFATAL_FAILURE(
        {
            RecordingPlatform platform;
            platform.ExpectMessage(u"Tato?"_s, MessageAnswer::Ok, MessageIcon::Stop);
            Ask(u"Tato?"_s);
        },
        "icon of: Tato?");
    EXPECT_NONFATAL_FAILURE(
        {
            RecordingPlatform platform;
            platform.ExpectMessage(u"Tato?"_s, MessageAnswer::Ok, {}, {}, u"Jiný titulek"_s);
            Ask(u"Tato?"_s);
        },
        "title of: Tato?");
}

TEST(RecordingPlatform, MenusAreAnsweredAndRemembered) {
    RecordingPlatform platform;
    MenuEntry parent;
    parent.text = u"Třída"_s;
    parent.submenu = {{701, u"mladých"_s, true, true, false, {}},
                      {702, u"veteránů"_s, false, false, false, {}}};
    const std::vector<MenuEntry> entries = {
        {606, u"První uzávěrka"_s, true, true, false, {}}, MenuEntry::Separator(), parent};
    platform.ExpectMenu(701);
    EXPECT_EQ(ThePlatform().menus->TrackPopup(entries), 701);
    EXPECT_EQ(platform.LastMenuLines(),
              (QStringList{u"606 [x] První uzávěrka"_s, u"---"_s, u"Třída"_s,
                           u"  701 [x] mladých"_s, u"  702 veteránů (-)"_s}));
    std::size_t seen = 0;
    platform.ExpectMenu(0, [&](const auto& shown) { seen = shown.size(); });
    EXPECT_EQ(ThePlatform().menus->TrackPopup(entries), 0);
    EXPECT_EQ(seen, 3u);
    platform.ExpectMenu(702);
    EXPECT_NONFATAL_FAILURE(ThePlatform().menus->TrackPopup(entries), "doesn't offer 702");
}

TEST(RecordingPlatform, StandsInForTheSmallServices) {
    RecordingPlatform platform;
    Platform& services = ThePlatform();
    platform.now = DateValue::FromCalendar(2005, 5, 14).WithSecondOfDay(30);
    EXPECT_EQ(services.clock->Now(), platform.now);
    EXPECT_EQ(services.locale->DateText(platform.now), u"14.5.2005 0:00:30"_s);
    EXPECT_EQ(services.locale->Item(kLocaleCurrencySymbol), u"Kč"_s);
    services.settings->Write(u"Software\\Hollow Peak\\Lorvo\\Sys"_s, u"ShowGrid"_s, u"1"_s);
    EXPECT_EQ(platform.settings.at(u"Sys\\ShowGrid"_s), u"1"_s);
    EXPECT_TRUE(services.opener->OpenFile(u"/x.html"_s));
    EXPECT_EQ(platform.openedFiles, QStringList(u"/x.html"_s));
    int runs = 0;
    platform.onProcessEvents = [&] {
        ++runs;
    };
    services.ui->ProcessEvents();
    EXPECT_EQ(runs, 1);
    WaitCursor wait(*services.ui);
    EXPECT_EQ(platform.waitCursorDepth, 1);
}

TEST(RecordingPlatform, WritesDownTheOperationsOfTheWordProcessor) {
    RecordingPlatform platform;
    const auto word = ThePlatform().wordProcessors->Create(u"Katalog"_s);
    word->SetFontSize(12);
    word->AddTabStop(CentimetersToPoints(1));
    word->SetBold(FontSwitch::Toggle);
    word->TypeText(u"Rex \t\"z Dvora\"\r\n"_s);
    word->TypeParagraph();
    EXPECT_TRUE(word->Show().opened);
    EXPECT_EQ(platform.wordOperations,
              (QStringList{u"SetFontSize 12"_s, u"AddTabStop 28.35"_s, u"SetBold Toggle"_s,
                           u"TypeText \"Rex \\t\\\"z Dvora\\\"\\r\\n\""_s, u"TypeParagraph"_s,
                           u"Show"_s}));
    EXPECT_EQ(platform.shownDocuments, 1);
    EXPECT_EQ(platform.documentTitles, QStringList(u"Katalog"_s));
}

TEST(RecordingPlatform, TheOuterPlatformComesBack) {
    RecordingPlatform outer;
    const QString folder = ThePlatform().programFolder;
    {
        RecordingPlatform inner;
        EXPECT_NE(ThePlatform().programFolder, folder);
    }
    EXPECT_EQ(ThePlatform().programFolder, folder);
}

} // namespace
} // namespace lorvo::test
