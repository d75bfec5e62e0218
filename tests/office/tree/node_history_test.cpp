#include "office/tree/node_history.h"

#include "platform/values/errors.h"
#include "support/print_qt.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class NodeHistoryTest : public ::testing::Test {
  protected:
    void RecordAll(const QStringList& keys) {
        for (const QString& key : keys)
            history_.Record(key);
    }
    QString Back() {
        QString shown;
        history_.GoBack([&](const QString& key) { shown = key; });
        return shown;
    }
    QString Forward() {
        QString shown;
        history_.GoForward([&](const QString& key) { shown = key; });
        return shown;
    }

    NodeHistory history_;
};

TEST_F(NodeHistoryTest, BackIsDisabledUntilASecondNodeHasBeenShown) {
    EXPECT_FALSE(history_.BackEnabled());
    history_.Record(u"K1"_s);
    EXPECT_FALSE(history_.BackEnabled());
    history_.Record(u"R2"_s);
    EXPECT_TRUE(history_.BackEnabled());
    EXPECT_FALSE(history_.ForwardEnabled());
}

TEST_F(NodeHistoryTest, StepsThereAndBack) {
    RecordAll({u"K1"_s, u"R2"_s, u"P3"_s});
    EXPECT_EQ(Back(), u"R2"_s);
    EXPECT_TRUE(history_.BackEnabled());
    EXPECT_TRUE(history_.ForwardEnabled());
    EXPECT_EQ(Back(), u"K1"_s);
    EXPECT_FALSE(history_.BackEnabled());
    EXPECT_EQ(Forward(), u"R2"_s);
    EXPECT_TRUE(history_.ForwardEnabled());
    EXPECT_EQ(Forward(), u"P3"_s);
    EXPECT_FALSE(history_.ForwardEnabled());
    EXPECT_TRUE(history_.BackEnabled());
}

TEST_F(NodeHistoryTest, ANodeShownByAStepIsNotRecorded) {
    RecordAll({u"K1"_s, u"R2"_s});
    history_.GoBack([&](const QString& key) { history_.Record(key); });
    EXPECT_EQ(Forward(), u"R2"_s);
    EXPECT_FALSE(history_.ForwardEnabled());
}

// kept: history-position-stays
TEST_F(NodeHistoryTest, ThePositionStaysWhenANodeIsRecordedAfterAStepBack) {
    RecordAll({u"K1"_s, u"R2"_s, u"P3"_s});
    EXPECT_EQ(Back(), u"R2"_s);
    history_.Record(u"P4"_s);
    EXPECT_TRUE(history_.ForwardEnabled());
    EXPECT_EQ(Back(), u"R2"_s) << "the next step goes from the old index, not from the newest";
    EXPECT_EQ(Back(), u"K1"_s);
}

TEST_F(NodeHistoryTest, TheOldestOfAThousandAndOneFallsOff) {
    for (int i = 0; i <= 1001; ++i)
        history_.Record(u'P' + QString::number(i));
    QString oldest;
    int steps = 0;
    while (history_.BackEnabled()) {
        oldest = Back();
        ++steps;
    }
    EXPECT_EQ(steps, 1000);
    EXPECT_EQ(oldest, u"P1"_s);
}

// kept: history-of-a-removed-node-ends
TEST_F(NodeHistoryTest, AStepToANodeThatIsGoneRaisesAndRecordingGoesOn) {
    RecordAll({u"K1"_s, u"R2"_s});
    EXPECT_THROW(history_.GoBack([](const QString&) { throw Error("gone"); }), Error);
    history_.Record(u"P3"_s);
    EXPECT_EQ(Back(), u"K1"_s);
}

} // namespace
} // namespace lorvo
