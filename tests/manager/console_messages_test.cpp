#include "manager/console_messages.h"

#include <gtest/gtest.h>

namespace lorvo {

namespace {

TEST(ConsoleMessagesTest, AScriptThatCantBeAskedRefuses) {
    ConsoleMessages messages;
    const auto answerTo = [&messages](MessageButtons buttons) {
        return messages.Show(QStringLiteral("Zpráva"), MessageIcon::Question, buttons,
                             QStringLiteral("Lorvo"));
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
