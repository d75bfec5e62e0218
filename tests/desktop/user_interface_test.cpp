#include "desktop/desktop_services.h"

#include <QApplication>
#include <QTimer>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

TEST(UserInterfaceTest, WaitCursorsNest) {
    DesktopUserInterface ui;
    {
        const WaitCursor outer(ui);
        { const WaitCursor inner(ui); }
        ASSERT_TRUE(QApplication::overrideCursor());
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST(UserInterfaceTest, PendingEventsRun) {
    bool ran = false;
    QTimer::singleShot(0, qApp, [&] { ran = true; });
    DesktopUserInterface().ProcessEvents();
    EXPECT_TRUE(ran);
}

} // namespace
} // namespace lorvo
