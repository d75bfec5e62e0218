// The main window over a disk that fails.

#include "mainwindow/shell_fixture.h"
#include "support/watched_disk.h"

#include <cerrno>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using ShellDisk = Shell;

TEST_F(ShellDisk, AFailureOfTheDiskIsSaidOnceWhenTheWindowStands) {
    const QString text =
        u"Data nelze načíst celá.\n\nDatabáze %1: na disku není místo. Uvolněte na "
        u"něm místo."_s.arg(database_.Path());
    platform_.ExpectMessage(text, MessageAnswer::Ok, MessageIcon::Exclamation, MessageButtons::Ok,
                            u"Lorvo"_s, [this] { EXPECT_TRUE(window_->isVisible()); });
    test::WatchedDisk disk(database_.Folder());
    disk.before = [](int, const test::DiskCall&) {
        return ENOSPC; // the main show can't be added
    };
    Start();
    QCoreApplication::processEvents();
    EXPECT_EQ(platform_.messages.size(), 1u);
}

} // namespace
} // namespace lorvo
