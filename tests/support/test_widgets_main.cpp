// Entry of tests of windows.

#include "support/test_environment.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    lorvo::test::PrepareEnvironment();
    QApplication application(argc, argv);
    lorvo::test::KeepAwake(application);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
