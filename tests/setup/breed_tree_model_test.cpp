#include "setup/breed_tree_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class BreedTreeModelTest : public ::testing::Test {
  protected:
    BreedTreeModelTest() {
        std::vector<std::unique_ptr<BreedNode>> top;
        top.push_back(Make(1, u"Pudl"_s));
        top.push_back(Make(2, u"Vipet"_s));
        model.SetNodes(std::move(top));
        model.AddChild(*model.Find(1), Make(3, u"Hnědý"_s));
    }
    static std::unique_ptr<BreedNode> Make(int ID, const QString& name) {
        auto node = std::make_unique<BreedNode>();
        node->ID = ID;
        node->cells[kBreedName] = name;
        return node;
    }

    BreedTreeModel model{{{kBreedName, u"Název"_s}, {kBreedRing, u"Kruh"_s}}, nullptr};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(BreedTreeModelTest, ABreedGoesWithItsSubgroups) {
    model.Remove(*model.Find(1));
    EXPECT_EQ(model.Find(1), nullptr);
    EXPECT_EQ(model.Find(3), nullptr);
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.index(0, 0).data().toString(), u"Vipet"_s);
}

TEST_F(BreedTreeModelTest, OnlyTheFirstCellTakesATick) {
    QSignalSpy ticked(&model, &BreedTreeModel::Ticked);
    EXPECT_FALSE(model.setData(model.index(0, 1), Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(model.setData(model.index(0, 0), u"Jiný"_s, Qt::EditRole));
    EXPECT_TRUE(model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(ticked.count(), 1);
    EXPECT_TRUE(model.Find(1)->checked);
}

TEST_F(BreedTreeModelTest, AnswersNothingOnWhatIsNotThere) {
    EXPECT_FALSE(model.index(2, 0).isValid());
    EXPECT_FALSE(model.index(0, 2).isValid());
    EXPECT_EQ(model.flags({}), Qt::NoItemFlags);
    EXPECT_FALSE(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
}

} // namespace
} // namespace lorvo
