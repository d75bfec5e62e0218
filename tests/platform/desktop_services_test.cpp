#include "platform/real_services.h"
#include "platform/values/qt_date.h"
#include "support/print_qt.h"

#include <QDesktopServices>
#include <QUrl>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class UrlCatcher : public QObject {
    Q_OBJECT
  public:
    UrlCatcher() {
        for (const QString& scheme : Schemes())
            QDesktopServices::setUrlHandler(scheme, this, "Catch");
    }
    ~UrlCatcher() override {
        for (const QString& scheme : Schemes())
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Q_INVOKABLE void Catch(const QUrl& url) {
        caught << (url.isLocalFile() ? url.toLocalFile() : url.toString());
    }
    QStringList caught;

  private:
    static QStringList Schemes() { return {u"file"_s, u"mailto"_s}; }
};

TEST(OpenService, FilesAndAddressesGoToTheDesktop) {
    UrlCatcher catcher;
    const auto opener = MakeOpenService();
    EXPECT_TRUE(opener->OpenFile(u"/tmp/Šablony/Výstup #1.html"_s));
    opener->OpenAddress(u"mailto:a@b.cz"_s);
    EXPECT_EQ(catcher.caught, (QStringList{u"/tmp/Šablony/Výstup #1.html"_s, u"mailto:a@b.cz"_s}));
}

TEST(Clock, TellsTheLocalTimeInWholeSeconds) {
    const DateValue before = FromQDateTime(QDateTime::currentDateTime());
    const DateValue now = MakeClock()->Now();
    EXPECT_GE(now, before);
    EXPECT_LE(now, FromQDateTime(QDateTime::currentDateTime()));
}

TEST(QtDate, ComesAndGoes) {
    const DateValue day = DateValue::FromCalendar(2005, 5, 14).WithSecondOfDay(86399);
    EXPECT_EQ(ToQDate(day), QDate(2005, 5, 14));
    EXPECT_EQ(FromQDateTime(QDateTime(QDate(2005, 5, 14), QTime(23, 59, 59))), day);
    EXPECT_EQ(FromQDate(QDate(1899, 12, 30)), DateValue());
    EXPECT_EQ(FromQDate(QDate()), DateValue());
    EXPECT_EQ(FromQDateTime(QDateTime()), DateValue());
}

} // namespace
} // namespace lorvo

#include "desktop_services_test.moc"
