// Labels that measure themselves ask for what the toolkit's own labels ask for.

#include "mainwindow/line_label.h"

#include "mainwindow/elided_link.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const std::initializer_list<QString> kTexts = {
    u"Jana Nováková"_s, u""_s,  u"ffi @ příliš.žluťoučký&kůň.cz"_s,
    u"1 349,00 Kč"_s,   u"W"_s, QString(200, u'm')};

std::vector<QFont> Fonts() {
    std::vector<QFont> fonts(3, QLabel().font());
    fonts[1].setBold(true);
    fonts[2].setPointSizeF(fonts[2].pointSizeF() * 1.5);
    return fonts;
}

TEST(LineLabel, AsksForWhatAnOrdinaryLabelAsksForWhateverItShowedBefore) {
    LineLabel label(u"Cena:"_s);
    QLabel ordinary;
    ordinary.setTextFormat(Qt::PlainText);
    EXPECT_EQ(label.sizeHint(), ordinary.sizeHint());
    EXPECT_EQ(label.minimumSizeHint(), ordinary.minimumSizeHint());
    for (const QFont& font : Fonts())
        for (const QString& text : kTexts) {
            for (QLabel* any : std::initializer_list<QLabel*>{&label, &ordinary}) {
                any->setFont(font);
                any->setText(text);
            }
            EXPECT_EQ(label.sizeHint(), ordinary.sizeHint()) << text.toStdString();
            EXPECT_EQ(label.minimumSizeHint(), ordinary.minimumSizeHint()) << text.toStdString();
        }
}

TEST(ElidedLink, AsksForWhatAnOrdinaryLinkAsksForWhateverItShowedBefore) {
    ElidedLink link(nullptr);
    LinkLabel ordinary(QString(), nullptr);
    EXPECT_EQ(link.sizeHint(), ordinary.sizeHint());
    for (const int reach : {0, 300, 20})
        for (const QFont& font : Fonts())
            for (const QString& text : kTexts) {
                for (LinkLabel* any : std::initializer_list<LinkLabel*>{&link, &ordinary}) {
                    any->setFont(font);
                    any->setText(text);
                }
                link.SetReach(reach);
                ordinary.SetReach(reach);
                EXPECT_EQ(link.sizeHint(), ordinary.sizeHint()) << text.toStdString();
                EXPECT_EQ(link.minimumSizeHint(),
                          Ellipsis::LeastSize(link, ordinary.minimumSizeHint()))
                    << text.toStdString();
            }
}

} // namespace
} // namespace lorvo
