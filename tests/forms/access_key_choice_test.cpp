#include "forms/access_key_choice.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

/// The letters of texts that all show together, "-" for one without.
QString Keys(const QStringList& texts) {
    std::vector<KeyedText> keyed;
    for (const QString& text : texts)
        keyed.push_back({WithoutMark(text), MarkedKey(text)});
    QString letters;
    for (const QChar key : ChooseAccessKeys(keyed))
        letters += key.isNull() ? QChar(u'-') : key;
    return letters;
}

TEST(AccessKeyChoice, PrefersFirstLettersOfWords) {
    EXPECT_EQ(Keys({u"Ano"_qs, u"Ne"_qs, u"Storno"_qs}), u"ANS"_qs);
    EXPECT_EQ(Keys({u"Jméno"_qs, u"Jméno matky"_qs}), u"JM"_qs);
}

TEST(AccessKeyChoice, PrefersLettersThatEveryKeyboardHas) {
    EXPECT_EQ(Keys({u"Číslo"_qs}), u"S"_qs);
}

TEST(AccessKeyChoice, AnEarlierTextGivesWayWhereBothThenHaveOne) {
    EXPECT_EQ(Keys({u"ab"_qs, u"a"_qs}), u"BA"_qs);
}

TEST(AccessKeyChoice, GivesALetterThatIsWishedForAsLongAsOthersHaveTheirs) {
    EXPECT_EQ(Keys({u"Čá&stka"_qs, u"Stav"_qs}), u"ST"_qs);
    EXPECT_EQ(Keys({u"&Otec"_qs, u"OK"_qs, u"K"_qs}), u"TOK"_qs);
}

TEST(AccessKeyChoice, AMarkIsOneAmpersandAndTwoAreNone) {
    EXPECT_EQ(MarkedKey(u"Kurs K&&č"_qs), QChar());
    EXPECT_EQ(WithoutMark(u"Kurs K&&č"_qs), u"Kurs K&&č"_qs);
    EXPECT_EQ(MarkedKey(u"Zpě&t"_qs), u'T');
    EXPECT_EQ(WithoutMark(u"Zpě&t"_qs), u"Zpět"_qs);
}

TEST(AccessKeyChoice, TextsOfDifferentPagesMayShareALetterButNotWithWhatIsCommon) {
    const auto keys = ChooseAccessKeys(
        {{u"OK"_qs, {}, 0}, {u"O"_qs, {}, 1}, {u"Psi"_qs, {}, 1}, {u"Psi"_qs, {}, 2}});
    EXPECT_EQ(keys[0], u'O');
    EXPECT_TRUE(keys[1].isNull());
    EXPECT_EQ(keys[2], u'P');
    EXPECT_EQ(keys[3], u'P');
}

} // namespace
} // namespace lorvo
