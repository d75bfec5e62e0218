#include "desktop/termination.h"

#include <QApplication>
#include <QCloseEvent>
#include <QTimer>
#include <QWidget>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

class ClosingWindow : public QWidget {
  public:
    int closings = 0;

  protected:
    void closeEvent(QCloseEvent* event) override {
        ++closings;
        QWidget::closeEvent(event);
    }
};

TEST(Termination, RequestToEndClosesTheWindowsAndTheProgram) {
    CloseOnTermination();
    ClosingWindow window;
    window.show();
    QTimer::singleShot(0, [] { std::raise(SIGTERM); });
    bool late = false;
    QTimer::singleShot(20000, qApp, [&late] {
        late = true;
        QCoreApplication::exit(1);
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(window.closings, 1);
    EXPECT_FALSE(late);
    std::signal(SIGTERM, SIG_DFL);
}

#ifdef Q_OS_UNIX
TEST(Termination, AFileThatMayNotGrowDoesNotEndTheProgram) {
    std::signal(SIGXFSZ, SIG_DFL);
    CloseOnTermination();
    EXPECT_EXIT(
        {
            std::raise(SIGXFSZ);
            std::_Exit(7);
        },
        ::testing::ExitedWithCode(7), "");
}
#endif

} // namespace
} // namespace lorvo
