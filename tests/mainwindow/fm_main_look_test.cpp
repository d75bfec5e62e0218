#include "mainwindow/fm_main_fixture.h"
#include "support/window_walk.h"

#include <QAction>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The window in order with each of its panels in front.
class MainWindowLook : public MainWindowTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(MainWindowLook, IsInOrderWithANodeShown) {
    AddSmallShow();
    Setting(u"Sys\\ShowClasses"_s) = u"1"_s;
    Start();
    const QString key = QString::fromUtf8(GetParam());
    window_->SelectNode(key);
    window_->ShowNodeInfo(key);
    test::WalkWindow(*window_);
}

INSTANTIATE_TEST_SUITE_P(Nodes, MainWindowLook,
                         ::testing::Values("K0", "K1", "R10", "TR10|5", "P100"));

TEST_F(MainWindowTest, IsInOrderBeforeAnyNodeIsShown) {
    Start();
    test::WalkWindow(*window_);
}

TEST_F(MainWindowTest, IsInOrderWithTheAboutPanel) {
    Start();
    Control<QAction>(u"HELP:ABOUT"_s).trigger();
    test::WalkWindow(*window_);
}

} // namespace
} // namespace lorvo
