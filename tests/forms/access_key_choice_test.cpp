#include "forms/access_key_choice.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

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
    EXPECT_EQ(Keys({u"Ano"_s, u"Ne"_s, u"Storno"_s}), u"ANS"_s);
    EXPECT_EQ(Keys({u"Jméno"_s, u"Jméno matky"_s}), u"JM"_s);
}

TEST(AccessKeyChoice, PrefersLettersThatEveryKeyboardHas) {
    EXPECT_EQ(Keys({u"Číslo"_s}), u"S"_s);
}

TEST(AccessKeyChoice, AnEarlierTextGivesWayWhereBothThenHaveOne) {
    EXPECT_EQ(Keys({u"ab"_s, u"a"_s}), u"BA"_s);
}

TEST(AccessKeyChoice, GivesALetterThatIsWishedForAsLongAsOthersHaveTheirs) {
    EXPECT_EQ(Keys({u"Čá&stka"_s, u"Stav"_s}), u"ST"_s);
    EXPECT_EQ(Keys({u"&Otec"_s, u"OK"_s, u"K"_s}), u"TOK"_s);
}

TEST(AccessKeyChoice, AMarkIsOneAmpersandAndTwoAreNone) {
    EXPECT_EQ(MarkedKey(u"Kurs K&&č"_s), QChar());
    EXPECT_EQ(WithoutMark(u"Kurs K&&č"_s), u"Kurs K&&č"_s);
    EXPECT_EQ(MarkedKey(u"Zpě&t"_s), u'T');
    EXPECT_EQ(WithoutMark(u"Zpě&t"_s), u"Zpět"_s);
}

TEST(AccessKeyChoice, CommandsKeepTheirLettersWhateverAUserIsCalled) {
    const auto keysBeside = [](const QString& name) {
        return ChooseAccessKeys({{name, {}, 0, true}, {u"Platba"_s, {}, 1}, {u"Seznam"_s}});
    };
    for (const QString& name : {u"Petr Šimek"_s, u"Sára"_s, u"P"_s}) {
        EXPECT_EQ(keysBeside(name)[1], u'P');
        EXPECT_EQ(keysBeside(name)[2], u'S');
    }
    EXPECT_EQ(keysBeside(u"Petr Šimek"_s)[0], u'E');
    EXPECT_TRUE(keysBeside(u"P"_s)[0].isNull());
}

TEST(AccessKeyChoice, TextsOfDifferentPagesMayShareALetterButNotWithWhatIsCommon) {
    const auto keys =
        ChooseAccessKeys({{u"OK"_s, {}, 0}, {u"O"_s, {}, 1}, {u"Psi"_s, {}, 1}, {u"Psi"_s, {}, 2}});
    EXPECT_EQ(keys[0], u'O');
    EXPECT_TRUE(keys[1].isNull());
    EXPECT_EQ(keys[2], u'P');
    EXPECT_EQ(keys[3], u'P');
}

} // namespace
} // namespace lorvo
