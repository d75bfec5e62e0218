#include "office/tree/node_key.h"

#include "support/print_qt.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

TEST(NodeKey, ReadsAndWritesEachKind) {
    const std::pair<const char16_t*, NodeKey> cases[] = {
        {u"K0", NodeKey::UnassignedRoot()}, {u"K12", NodeKey::Ring(12)},
        {u"R949", NodeKey::Breed(949)},     {u"TR949|3", NodeKey::Class(949, 3)},
        {u"P32000", NodeKey::Dog(32000)},
    };
    for (const auto& [text, key] : cases) {
        EXPECT_EQ(key.ToText(), QString::fromUtf16(text));
        EXPECT_EQ(NodeKey::FromText(QString::fromUtf16(text)), key);
    }
}

TEST(NodeKey, TellsRingsFromTheUnassignedRoot) {
    EXPECT_EQ(NodeKey::FromText(u"K0"_s)->kind, NodeKind::UnassignedRoot);
    EXPECT_EQ(NodeKey::FromText(u"K1"_s)->kind, NodeKind::Ring);
    EXPECT_EQ(NodeKey::Ring(0), NodeKey::UnassignedRoot());
}

TEST(NodeKey, RefusesWhatIsNotLetterForLetterAKey) {
    const char16_t* texts[] = {u"",      u"K",      u"K0------",    u"R05",  u"R 5",  u"R5 ",
                               u"r5",    u"P5x",    u"P",           u"F1|2", u"TR5",  u"TR5|",
                               u"TR5|x", u"TR5|03", u"T5|3",        u"T",    u"TR|3", u"R+5",
                               u"3",     u"|",      u"P99999999999"};
    for (const char16_t* text : texts)
        EXPECT_FALSE(NodeKey::FromText(QString::fromUtf16(text)))
            << QString::fromUtf16(text).toStdString();
}

} // namespace lorvo
