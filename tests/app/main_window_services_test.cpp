#include "app/main_window_services.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>

namespace lorvo {

namespace {

TEST(MainWindowServicesTest, WithoutAMainWindowNobodyAnswersForIt) {
    SetTheMainWindow(nullptr);
    EXPECT_THROW(TheMainWindow(), Error);
}

} // namespace
} // namespace lorvo
