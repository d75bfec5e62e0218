#include "platform/docx/xml_writer.h"

#include "platform/values/errors.h"

#include <QBuffer>
#include <QFile>
#include <gtest/gtest.h>

namespace lorvo::docx {

using namespace Qt::StringLiterals;

namespace {

/// What a writer makes below the declaration.
QByteArray Written(const std::function<void(XmlWriter&)>& write) {
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    XmlWriter xml(device);
    write(xml);
    xml.Finish();
    return bytes.mid(bytes.indexOf('\n') + 1);
}

} // namespace

TEST(XmlWriter, PairsElementsAndEscapesTextAndAttributes) {
    EXPECT_EQ(Written([](XmlWriter& xml) {
                  xml.Start("a").Attribute("n", 12).Attribute("q", QStringView(u"\"<&>\""));
                  xml.Empty("b");
                  xml.Text(u"x < y & z > w").End();
              }),
              "<a n=\"12\" q=\"&quot;&lt;&amp;&gt;&quot;\"><b/>x &lt; y &amp; z &gt; w</a>");
}

TEST(XmlWriter, WritesEveryPlaneAsUtf8) {
    const QString text = u"aé\u010D\u20AC\U0001F415\U0010FFFD"_s;
    EXPECT_EQ(Written([&](XmlWriter& xml) { xml.Start("a").Text(text).End(); }),
              "<a>" + text.toUtf8() + "</a>");
}

TEST(XmlWriter, LeavesOutWhatXmlForbids) {
    const QString text = QString::fromUtf16(u"a\x01\x0B\x1F\xFFFE\xFFFF"
                                            u"b");
    const QString halves = QString(QChar(0xD83D)) + u'c' + QChar(0xDC15);
    EXPECT_EQ(Written([&](XmlWriter& xml) { xml.Start("a").Text(text).Text(halves).End(); }),
              "<a>abc</a>");
}

TEST(XmlWriter, KeepsWhatIsLongerThanItsBuffer) {
    const QString text(1000, u'x');
    const QByteArray bytes = Written([&](XmlWriter& xml) {
        xml.Start("a");
        for (int i = 0; i < 300; ++i)
            xml.Start("b").Text(text).End();
        xml.End();
    });
    EXPECT_EQ(bytes.size(), 300 * 1007 + 7);
    EXPECT_EQ(bytes.count("<b>"), 300);
}

#ifdef Q_OS_LINUX // whose systems have a device that is always full
TEST(XmlWriter, NamesTheFileThatTakesNoMore) {
    QFile full(u"/dev/full"_s);
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    XmlWriter xml(full);
    try {
        xml.Finish();
        FAIL() << "nothing was raised";
    } catch (const PlatformError& error) {
        EXPECT_NE(std::string(error.what()).find("„/dev/full“"), std::string::npos) << error.what();
    }
}
#endif

} // namespace lorvo::docx
