#include "manager/console_messages.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(ConsoleMessagesTest, AScriptThatCantBeAskedRefuses) {
    ConsoleMessages messages;
    const auto answerTo = [&messages](MessageButtons buttons) {
        return messages.Show(u"Zpráva"_s, MessageIcon::Question, buttons, u"Lorvo"_s);
    };
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(answerTo(MessageButtons::Ok), MessageAnswer::Ok);
    EXPECT_EQ(answerTo(MessageButtons::YesNo), MessageAnswer::No);
    EXPECT_EQ(answerTo(MessageButtons::OkCancel), MessageAnswer::Cancel);
    EXPECT_EQ(answerTo(MessageButtons::YesNoCancel), MessageAnswer::Cancel);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "Zpráva\nZpráva\nZpráva\nZpráva\n");
}

} // namespace
} // namespace lorvo
