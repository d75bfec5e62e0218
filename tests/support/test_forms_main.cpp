// Entry of tests of windows that run in the program's own application object: a failure that an
// event handler raised and no test asked for fails the test.

#include "forms/application.h"
#include "platform/failure_guard.h"
#include "support/test_environment.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace {

class FailureListener : public ::testing::EmptyTestEventListener {
    void OnTestEnd(const ::testing::TestInfo&) override {
        EXPECT_NO_THROW(lorvo::RethrowFailure());
        // A failure ends all loops, later ones too until the application's own has run.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
    }
};

} // namespace

int main(int argc, char** argv) {
    lorvo::test::PrepareEnvironment();
    lorvo::Application application(argc, argv);
    lorvo::test::KeepAwake(application);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new FailureListener);
    return RUN_ALL_TESTS();
}
