// What the entry of the program puts in place of a test's stand-ins.

#include "desktop/real_platform.h"

#include "platform/platform.h"
#include "support/print_qt.h"

#include <QApplication>
#include <QFileDialog>
#include <QLocale>
#include <QTimer>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class RealPlatformTest : public ::testing::Test {
  protected:
    ~RealPlatformTest() override { ThePlatform() = std::move(before_); }

    /// Does something with the dialog that opens next.
    static void InDialog(const std::function<void(QFileDialog&)>& deed) {
        QTimer::singleShot(0, qApp, [deed] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            deed(*dialog);
        });
    }

  private:
    Platform before_ = std::move(ThePlatform());
};

TEST_F(RealPlatformTest, EveryServiceIsThere) {
    InstallRealPlatform();
    const Platform& platform = ThePlatform();
    EXPECT_EQ(platform.programFolder, QCoreApplication::applicationDirPath());
    EXPECT_TRUE(platform.messages && platform.menus && platform.files && platform.opener &&
                platform.settings && platform.iniFiles && platform.locale && platform.clock &&
                platform.wordProcessors && platform.ui);
    EXPECT_EQ(QString::fromStdString(platform.clock->Now().ToIso()).first(4),
              QString::number(QDate::currentDate().year()));
}

TEST_F(RealPlatformTest, AFileThatIsNotChosenIsAnEmptyPath) {
    InstallRealPlatform();
    InDialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Přihlášky"_s);
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    });
    EXPECT_EQ(ThePlatform().files->Open(u"Přihlášky"_s, u"CSV (*.csv)"_s), QString());
    InDialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(dialog.selectedFiles().value(0).endsWith(u"psi.csv"_s));
        dialog.reject();
    });
    EXPECT_EQ(ThePlatform().files->Save(u"Seznam"_s, u"psi.csv"_s, u"CSV (*.csv)"_s), QString());
}

TEST_F(RealPlatformTest, TheToolkitSpeaksCzech) {
    const QLocale before;
    SpeakCzech();
    EXPECT_EQ(QLocale().name(), u"cs_CZ"_s);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Zrušit"_s);
    QLocale::setDefault(before);
}

} // namespace
} // namespace lorvo
