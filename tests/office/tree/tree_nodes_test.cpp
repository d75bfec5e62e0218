#include "office/tree/tree_nodes.h"

#include "office/numbers/catalogue_numbering.h"
#include "office/tree/tree_lines.h"
#include "platform/values/errors.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// K0 with breed 1 and its dogs 11 and 12; ring 5 with breed 2, its class 3 and there dog 21.
class TreeNodesTest : public ::testing::Test {
  protected:
    TreeNodesTest() {
        root = nodes.AddUnassignedRoot(u"Nezařazeno"_s);
        breed = nodes.AddBreed(root, 1, u"Boxer"_s);
        male = nodes.AddDog(breed, 11, u"Alík"_s, true);
        bitch = nodes.AddDog(breed, 12, u"Bára"_s, false);
        ring = nodes.AddRing(5, u"Kruh"_s);
        ringBreed = nodes.AddBreed(ring, 2, u"Čivava"_s);
        classNode = nodes.AddClass(ringBreed, 3, u"Třída mladých"_s);
        deepDog = nodes.AddDog(classNode, 21, u"Cvrk"_s, true);
    }

    TreeNodes nodes;
    TreeNode *root, *breed, *male, *bitch, *ring, *ringBreed, *classNode, *deepDog;
};

TEST_F(TreeNodesTest, WalksForwardsAndBackwardsInTheSameOrder) {
    const std::vector<TreeNode*> order = {root, breed,     male,      bitch,
                                          ring, ringBreed, classNode, deepDog};
    std::vector<TreeNode*> forwards, backwards;
    for (TreeNode* node = nodes.First(); node; node = nodes.Next(node))
        forwards.push_back(node);
    for (TreeNode* node = nodes.Last(); node; node = nodes.Previous(node))
        backwards.insert(backwards.begin(), node);
    EXPECT_EQ(forwards, order);
    EXPECT_EQ(backwards, order);
    EXPECT_EQ(nodes.Count(), 8);
}

TEST_F(TreeNodesTest, CountsPositionsFromOne) {
    EXPECT_EQ(nodes.At(1), root);
    EXPECT_EQ(nodes.At(8), deepDog);
    EXPECT_EQ(nodes.At(0), nullptr);
    EXPECT_EQ(nodes.At(9), nullptr);
}

TEST_F(TreeNodesTest, KeepsItsOrderOfAnEmptyTree) {
    const TreeNodes empty;
    EXPECT_EQ(empty.First(), nullptr);
    EXPECT_EQ(empty.Last(), nullptr);
    EXPECT_EQ(empty.At(1), nullptr);
}

TEST_F(TreeNodesTest, FindsByKey) {
    EXPECT_EQ(nodes.Find(u"K0"_s), root);
    EXPECT_EQ(nodes.Find(u"TR2|3"_s), classNode);
    EXPECT_EQ(nodes.Find(NodeKey::Dog(21)), deepDog);
    EXPECT_EQ(nodes.Find(u"P99"_s), nullptr);
    EXPECT_EQ(nodes.Find(QString()), nullptr);
    EXPECT_THROW(nodes.Get(u"P99"_s), Error);
}

TEST_F(TreeNodesTest, TellsTagWeightAndColourOfEachKind) {
    EXPECT_EQ(root->Tag(), QString());
    EXPECT_EQ(ring->Tag(), u"K5"_s);
    EXPECT_EQ(breed->Tag(), QString());
    EXPECT_EQ(classNode->Tag(), u"C3"_s);
    EXPECT_EQ(male->Tag(), u"P 11"_s);
    EXPECT_TRUE(root->bold && ring->bold && breed->bold);
    EXPECT_FALSE(classNode->bold || male->bold);
    EXPECT_EQ(male->colour, kMaleText);
    EXPECT_EQ(bitch->colour, kFemaleText);
    EXPECT_EQ(ring->colour, kBlack);
}

TEST_F(TreeNodesTest, RefusesAKeyTwice) {
    EXPECT_THROW(nodes.AddDog(classNode, 11, u"Alík"_s, true), Error);
    EXPECT_EQ(classNode->children.size(), 1U);
    EXPECT_EQ(nodes.Count(), 8);
}

TEST_F(TreeNodesTest, AddsARingThatGetsItsKeyLater) {
    TreeNode* added = nodes.AddRingWithoutKey(u"Nový kruh"_s);
    EXPECT_EQ(added->Key(), QString());
    EXPECT_EQ(nodes.Find(u"K0"_s), root);
    nodes.GiveKey(added, 6);
    EXPECT_EQ(nodes.Find(u"K6"_s), added);
    EXPECT_EQ(added->Tag(), QString());
    EXPECT_FALSE(added->bold);
}

TEST_F(TreeNodesTest, RemovesANodeWithAllBelowIt) {
    nodes.MarkOnPath(ringBreed);
    nodes.Remove(ring);
    EXPECT_EQ(nodes.Last(), bitch);
    EXPECT_EQ(nodes.Find(u"P21"_s), nullptr);
    EXPECT_EQ(nodes.Find(u"TR2|3"_s), nullptr);
    EXPECT_EQ(nodes.Count(), 4);
    nodes.ClearPath();
    nodes.Remove(male);
    EXPECT_EQ(bitch->row, 0);
    EXPECT_EQ(nodes.Previous(bitch), breed);
}

TEST_F(TreeNodesTest, MovesANodeToTheEndOfItsNewParent) {
    nodes.Move(male, ringBreed);
    EXPECT_EQ(male->parent, ringBreed);
    EXPECT_EQ(male->row, 1);
    EXPECT_EQ(bitch->row, 0);
    EXPECT_EQ(deepDog->NextSibling(), nullptr);
    EXPECT_EQ(nodes.Next(deepDog), male);
    nodes.Move(breed, ring);
    EXPECT_EQ(test::TreeLines(nodes),
              (QStringList{u"K0 Nezařazeno"_s, u"K5 Kruh"_s, u"  R2 Čivava"_s,
                           u"    TR2|3 Třída mladých"_s, u"      P21 Cvrk"_s, u"    P11 Alík"_s,
                           u"  R1 Boxer"_s, u"    P12 Bára"_s}));
}

TEST_F(TreeNodesTest, LeavesANodeInPlaceThatMovesToItsOwnParent) {
    nodes.Move(male, breed);
    EXPECT_EQ(male->row, 0);
}

TEST_F(TreeNodesTest, MarksAPathAndTakesTheMarkAwayWithoutTouchingDogs) {
    nodes.SetBackground(male, kHighlight);
    nodes.MarkOnPath(breed);
    nodes.MarkOnPath(root);
    EXPECT_EQ(root->colour, kPathText);
    EXPECT_EQ(breed->background, kPathBackground);
    nodes.ClearPath();
    EXPECT_EQ(root->colour, kBlack);
    EXPECT_EQ(breed->background, kWhite);
    EXPECT_EQ(male->colour, kMaleText);
    EXPECT_EQ(male->background, kHighlight);
}

TEST_F(TreeNodesTest, ClearsTheBackgroundsOfDogsOrAllColours) {
    nodes.SetBackground(male, kHighlight);
    nodes.MarkOnPath(breed);
    nodes.ClearDogBackgrounds();
    EXPECT_EQ(male->background, kWhite);
    EXPECT_EQ(male->colour, kMaleText);
    EXPECT_EQ(breed->background, kPathBackground);
    nodes.ClearAllColours();
    EXPECT_EQ(male->colour, kBlack);
    EXPECT_EQ(breed->background, kWhite);
    EXPECT_EQ(breed->colour, kBlack);
}

TEST_F(TreeNodesTest, StartsAfreshWhenRebuilt) {
    nodes.MarkOnPath(root);
    {
        const TreeNodes::Rebuilding rebuilding(nodes);
        EXPECT_EQ(nodes.First(), nullptr);
        nodes.AddRing(7, u"Jediný"_s);
    }
    nodes.ClearPath();
    EXPECT_EQ(test::TreeLines(nodes), QStringList{u"K7 Jediný"_s});
    EXPECT_EQ(nodes.Find(u"P11"_s), nullptr);
    EXPECT_EQ(nodes.Count(), 1);
}

TEST_F(TreeNodesTest, ServesTheNumberingWalk) {
    nodes.Remove(breed);
    nodes.AddDog(ringBreed, 22, u"Dan"_s, true);
    QStringList numbered;
    WalkForNumbering<TreeNode>(nodes.First(), [&](TreeNode& dog, std::int16_t number) {
        numbered.append(QString::number(number) + u' ' + dog.Key());
    });
    EXPECT_EQ(numbered, (QStringList{u"1 P21"_s, u"2 P22"_s}));
}

} // namespace
} // namespace lorvo
