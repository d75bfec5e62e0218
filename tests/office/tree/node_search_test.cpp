#include "office/tree/node_search.h"

#include "platform/values/errors.h"
#include "support/print_qt.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Positions: 1 K0, 2 R1, 3 TR1|1, 4 P1, 5 P2, 6 K1, 7 R2, 8 P3.
class NodeSearchTest : public ::testing::Test {
  protected:
    NodeSearchTest() {
        TreeNode* breed = nodes.AddBreed(nodes.AddUnassignedRoot(u"Baron"_s), 1, u"Boxer"_s);
        TreeNode* classNode = nodes.AddClass(breed, 1, u"Třída baronů"_s);
        nodes.AddDog(classNode, 1, u"12 Baron"_s, true);
        nodes.AddDog(classNode, 2, u"Šárka [1]"_s, false);
        TreeNode* ring = nodes.AddRing(1, u"Baron"_s);
        nodes.AddDog(nodes.AddBreed(ring, 2, u"Čuvač"_s), 3, u"BARONKA"_s, false);
    }
    QString Found(const QString& text) {
        const TreeNode* node = FindByText(nodes, text, position);
        return node ? node->Key() : QString();
    }

    TreeNodes nodes;
    int position = 1;
};

TEST_F(NodeSearchTest, GoesFromMatchToMatchPastRingsAndClassesAndThenStops) {
    EXPECT_EQ(Found(u"baron"_s), u"P1"_s);
    EXPECT_EQ(position, 5);
    EXPECT_EQ(Found(u"baron"_s), u"P3"_s);
    EXPECT_EQ(position, 9);
    EXPECT_EQ(Found(u"baron"_s), QString());
    EXPECT_EQ(position, 9);
    position = 1;
    EXPECT_EQ(Found(u"baron"_s), u"P1"_s);
}

TEST_F(NodeSearchTest, KeepsItsPositionWhenNothingFits) {
    position = 4;
    EXPECT_EQ(Found(u"boxer"_s), QString());
    EXPECT_EQ(position, 4);
}

TEST_F(NodeSearchTest, FindsANumberedDogByItsNumber) {
    EXPECT_EQ(Found(u"12"_s), u"P1"_s);
}

TEST_F(NodeSearchTest, IgnoresLetterCaseInCzechToo) {
    EXPECT_EQ(Found(u"ŠÁRKA"_s), u"P2"_s);
    EXPECT_EQ(Found(u"čUVAČ"_s), u"R2"_s);
}

// kept: search-text-is-a-pattern
TEST_F(NodeSearchTest, TakesWildcardsInTheText) {
    EXPECT_EQ(Found(u"# b?r"_s), u"P1"_s);
    EXPECT_EQ(Found(u"[[]1]"_s), u"P2"_s);
    EXPECT_EQ(Found(u"b*ka"_s), u"P3"_s);
}

TEST_F(NodeSearchTest, RefusesAListThatIsNeverClosed) {
    EXPECT_THROW(Found(u"["_s), Error);
    EXPECT_EQ(position, 1);
}

} // namespace
} // namespace lorvo
