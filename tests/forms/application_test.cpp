#include "forms/application.h"

#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "support/recording_platform.h"

#include <QDialog>
#include <QFont>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

Application& TheApplication() {
    return static_cast<Application&>(*qApp);
}

TEST(ApplicationTest, AFailureOfTheStartIsShownAndEndsWithCodeOne) {
    test::RecordingPlatform platform;
    platform.ExpectMessage(u"Soubor data.mdb chybí."_s, MessageAnswer::Ok, MessageIcon::Stop,
                           MessageButtons::Ok, u"Lorvo"_s);
    EXPECT_EQ(TheApplication().Run([] { throw StoreError("Soubor data.mdb chybí."); }), 1);
}

TEST(ApplicationTest, AFailureOfAHandlerEndsTheLoopAndIsShownOnce) {
    test::RecordingPlatform platform;
    platform.ExpectMessage(
        u"Disk je plný.\n\nPoslední zadání se neuložilo. Všechno, co bylo zadáno před "
        "ním, je uloženo.\n\nProgram se ukončí."_s);
    EXPECT_EQ(TheApplication().Run(
                  [] { QTimer::singleShot(0, qApp, [] { throw DiskError("Disk je plný."); }); }),
              1);
    EXPECT_NO_THROW(RethrowFailure());
}

TEST(ApplicationTest, AFailureThatIsNotTheDisksDoesNotCallTheLastEntryLost) {
    test::RecordingPlatform platform;
    platform.ExpectMessage(
        u"Položka stromu chybí.\n\nZda se uložilo poslední zadání, zkontrolujte po novém spuštění. "
        "Všechno, co bylo zadáno před ním, je uloženo.\n\nProgram se ukončí."_s);
    EXPECT_EQ(TheApplication().Run([] {
        QTimer::singleShot(0, qApp, [] { throw StoreError("Položka stromu chybí."); });
    }),
              1);
}

TEST(ApplicationTest, OfADamagedFileNothingIsPromised) {
    test::RecordingPlatform platform;
    platform.ExpectMessage(u"Soubor je poškozen.\n\nProgram se ukončí."_s);
    EXPECT_EQ(TheApplication().Run([] {
        QTimer::singleShot(0, qApp, [] { throw CorruptStoreError("Soubor je poškozen."); });
    }),
              1);
}

TEST(ApplicationTest, AnUneventfulRunEndsWithItsOwnCode) {
    test::RecordingPlatform platform;
    EXPECT_EQ(TheApplication().Run(
                  [] { QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); }); }),
              0);
}

/// Boxes in which a request to end comes in; says whether it ended them.
class BoxesAtTheEnd : public MessageBoxes {
  public:
    explicit BoxesAtTheEnd(bool& ended) : ended_(&ended) {}
    MessageAnswer Show(const QString&, MessageIcon, MessageButtons, const QString&) override {
        QDialog box;
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QTimer::singleShot(20000, &box, [&box] { box.done(7); });
        *ended_ = box.exec() != 7;
        return MessageAnswer::Ok;
    }

  private:
    bool* ended_;
};

TEST(ApplicationTest, ARequestToEndEndsAMessageBeforeAndAfterTheWork) {
    test::RecordingPlatform platform;
    bool ended = false;
    ThePlatform().messages = std::make_unique<BoxesAtTheEnd>(ended);
    EXPECT_EQ(TheApplication().Tell(u"Lorvo už běží."_s, MessageIcon::Information), 1);
    EXPECT_TRUE(ended);
    ended = false;
    EXPECT_EQ(TheApplication().Run([] { throw StoreError("Soubor data.mdb chybí."); }), 1);
    EXPECT_TRUE(ended);
}

TEST(ApplicationTest, TahomaIsShownByAFontThatHasCzechLetters) {
    EXPECT_FALSE(QFont::substitutes(u"Tahoma"_s).isEmpty());
}

} // namespace
} // namespace lorvo
