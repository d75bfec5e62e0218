#include "forms/application.h"

#include "platform/failure_guard.h"
#include "platform/values/errors.h"
#include "support/recording_platform.h"

#include <QFont>
#include <QTimer>
#include <gtest/gtest.h>

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
                  [] { QTimer::singleShot(0, qApp, [] { throw StoreError("Disk je plný."); }); }),
              1);
    EXPECT_NO_THROW(RethrowFailure());
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

TEST(ApplicationTest, TahomaIsShownByAFontThatHasCzechLetters) {
    EXPECT_FALSE(QFont::substitutes(u"Tahoma"_s).isEmpty());
}

} // namespace
} // namespace lorvo
