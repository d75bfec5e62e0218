#include "office/tree/tree_model.h"

#include "office/tree/tree_lines.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QFont>
#include <QMimeData>
#include <QPersistentModelIndex>
#include <QPixmap>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <random>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class TreeModelTest : public ::testing::Test {
  protected:
    TreeModelTest() {
        root = nodes.AddUnassignedRoot(u"Nezařazeno"_s);
        breed = nodes.AddBreed(root, 1, u"Boxer"_s);
        dog = nodes.AddDog(breed, 11, u"Alík"_s, true);
        ring = nodes.AddRing(5, u"Kruh"_s);
    }
    QVariant Data(const TreeNode* node, int role) const { return model.IndexOf(node).data(role); }

    TreeNodes nodes;
    TreeModel model{nodes};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    TreeNode *root, *breed, *dog, *ring;
};

TEST_F(TreeModelTest, ShowsTextKeyTagColoursAndWeight) {
    EXPECT_EQ(Data(dog, Qt::DisplayRole).toString(), u"Alík"_s);
    EXPECT_EQ(Data(dog, TreeModel::kKeyRole).toString(), u"P11"_s);
    EXPECT_EQ(Data(dog, TreeModel::kTagRole).toString(), u"P 11"_s);
    EXPECT_EQ(Data(dog, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
    EXPECT_EQ(Data(dog, Qt::BackgroundRole).value<QColor>(), QColor(255, 255, 255));
    EXPECT_FALSE(Data(dog, Qt::FontRole).isValid());
    EXPECT_TRUE(Data(breed, Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(Data(breed, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 0));
}

TEST_F(TreeModelTest, SpeaksWhatColoursSay) {
    EXPECT_EQ(Data(dog, Qt::AccessibleTextRole).toString(), u"Alík, pes"_s);
    const TreeNode* bitch = nodes.AddDog(breed, 12, u"Bára"_s, false);
    EXPECT_EQ(Data(bitch, Qt::AccessibleTextRole).toString(), u"Bára, fena"_s);
    EXPECT_EQ(Data(breed, Qt::AccessibleTextRole).toString(), u"Boxer"_s);
    nodes.SetBackground(dog, kHighlight);
    EXPECT_EQ(Data(dog, Qt::AccessibleTextRole).toString(), u"Alík, pes, zvýrazněno"_s);
}

TEST_F(TreeModelTest, ShowsThePictureOfTheKind) {
    TreeModel::Icons icons;
    for (std::size_t i = 0; i < icons.size(); ++i) {
        QPixmap picture(1, 1);
        picture.fill(QColor::fromRgb(static_cast<QRgb>(i)));
        icons[i] = QIcon(picture);
    }
    model.SetIcons(icons);
    EXPECT_EQ(model.IconOf(*ring).cacheKey(), icons[0].cacheKey());
    EXPECT_EQ(model.IconOf(*breed).cacheKey(), icons[1].cacheKey());
    EXPECT_EQ(model.IconOf(*dog).cacheKey(), icons[3].cacheKey());
    EXPECT_EQ(model.IconOf(*root).cacheKey(), icons[4].cacheKey());
    EXPECT_EQ(Data(ring, Qt::DecorationRole).value<QIcon>().cacheKey(), icons[0].cacheKey());
}

TEST_F(TreeModelTest, LetsBreedsAndDogsBeDraggedAlone) {
    const auto draggable = [this](const TreeNode* node) {
        return model.IndexOf(node).flags().testFlag(Qt::ItemIsDragEnabled);
    };
    EXPECT_TRUE(draggable(breed));
    EXPECT_TRUE(draggable(dog));
    EXPECT_FALSE(draggable(ring));
    EXPECT_FALSE(draggable(root));
    const std::unique_ptr<QMimeData> data(model.mimeData({model.IndexOf(dog)}));
    EXPECT_EQ(data->text(), u"P11"_s);
}

TEST_F(TreeModelTest, AnnouncesAnEditedTextAndKeepsTheOldOne) {
    QSignalSpy edited(&model, &TreeModel::LabelEdited);
    model.setData(model.IndexOf(ring), u"Jiný"_s, Qt::EditRole);
    ASSERT_EQ(edited.count(), 1);
    EXPECT_EQ(edited[0][0].value<TreeNode*>(), ring);
    EXPECT_EQ(edited[0][1].toString(), u"Jiný"_s);
    EXPECT_EQ(ring->text, u"Kruh"_s);
}

TEST_F(TreeModelTest, TellsViewsOfTextsAndColours) {
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    nodes.SetText(dog, u"1 Alík"_s);
    nodes.MarkOnPath(breed);
    nodes.ClearPath();
    ASSERT_EQ(changed.count(), 3);
    EXPECT_EQ(changed[0][0].toModelIndex(), model.IndexOf(dog));
    EXPECT_EQ(changed[2][0].toModelIndex(), model.IndexOf(breed));
    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    nodes.ClearAllColours();
    EXPECT_EQ(layout.count(), 1);
}

TEST_F(TreeModelTest, KeepsAPersistentIndexThroughMovesAndRemovals) {
    const QPersistentModelIndex index = model.IndexOf(dog);
    TreeNode* other = nodes.AddBreed(ring, 2, u"Čivava"_s);
    nodes.Move(dog, other);
    EXPECT_EQ(index, model.IndexOf(dog));
    EXPECT_EQ(index.parent(), model.IndexOf(other));
    nodes.Remove(root);
    EXPECT_TRUE(index.isValid());
    nodes.Remove(other);
    EXPECT_FALSE(index.isValid());
}

TEST_F(TreeModelTest, RebuildsInOneReset) {
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
    {
        const TreeNodes::Rebuilding rebuilding(nodes);
        nodes.AddBreed(nodes.AddRing(1, u"A"_s), 2, u"B"_s);
    }
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(inserts.count(), 0);
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(TreeModelTest, StandsAnyRunOfEdits) {
    std::mt19937 random(20261121); // a fixed start, so that a failure comes again
    const auto below = [&random](int limit) {
        return std::uniform_int_distribution<>(0, limit - 1)(random);
    };
    int id = 100;
    for (int step = 0; step < 400; ++step) {
        TreeNode* node = nodes.At(1 + below(nodes.Count()));
        switch (below(5)) {
        case 0:
            nodes.AddRing(++id, u"kruh"_s);
            break;
        case 1:
            nodes.AddDog(node->IsDog() ? node->parent : node, ++id, u"pes"_s, step % 2 == 0);
            break;
        case 2:
            nodes.AddBreed(nodes.First(), ++id, u"plemeno"_s);
            break;
        case 3:
            if (node->IsDog())
                nodes.Move(node, nodes.First());
            break;
        case 4:
            if (nodes.Count() > 20)
                nodes.Remove(node);
            break;
        }
        ASSERT_GT(nodes.Count(), 0);
    }
    EXPECT_EQ(test::TreeLines(nodes).size(), nodes.Count());
}

} // namespace
} // namespace lorvo
