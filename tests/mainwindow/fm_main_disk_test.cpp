// The main window over a disk that fails.

#include "mainwindow/fm_main_fixture.h"
#include "support/watched_disk.h"

#include <cerrno>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using MainWindowDisk = MainWindowTest;

TEST_F(MainWindowDisk, AFailureOfTheDiskIsNotedBesideTheDataAndInNoBox) {
    test::WatchedDisk disk(database_.Folder());
    disk.before = [](int, const test::DiskCall&) {
        return ENOSPC; // the main show can't be added
    };
    Start();
    QCoreApplication::processEvents();
    const auto& notice = Control<QLabel>(u"lblDisk"_s);
    EXPECT_TRUE(notice.isVisible());
    EXPECT_EQ(notice.text(), u"Data nelze načíst celá");
    EXPECT_EQ(notice.toolTip(),
              u"Databáze %1: na disku není místo. Uvolněte na něm místo."_s.arg(database_.Path()));
    EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(MainWindowDisk, DataThatTheDiskGivesWholeAreShownWithoutAWord) {
    Start();
    EXPECT_FALSE(Control<QLabel>(u"lblDisk"_s).isVisible());
}

} // namespace
} // namespace lorvo
