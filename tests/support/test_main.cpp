// Entry of tests that need no widgets.

#include "support/test_environment.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    lorvo::test::PrepareEnvironment();
    const QGuiApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
