#include "platform/failure_guard.h"

#include "platform/values/errors.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <stdexcept>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class Sender : public QObject {
    Q_OBJECT
  Q_SIGNALS:
    void Sent(int number, const QString& text);
};

class Receiver : public QObject {
    Q_OBJECT
  public:
    void TakeNothing() { ++calls; }
    void TakeNumber(int number) { sum += number; }
    int calls = 0;
    int sum = 0;
};

class FailureGuardTest : public ::testing::Test {
  protected:
    ~FailureGuardTest() override { TakeFailure(); }
    void Send() { Q_EMIT sender.Sent(7, u"Rex"_s); }

    Sender sender;
    Receiver receiver;
};

[[noreturn]] void Fail(const char* text) {
    throw StoreError(text);
}

TEST_F(FailureGuardTest, ASlotTakesAsManyArgumentsAsItHas) {
    QString received;
    Connect(&sender, &Sender::Sent, &receiver, &Receiver::TakeNothing);
    Connect(&sender, &Sender::Sent, &receiver, &Receiver::TakeNumber);
    Connect(&sender, &Sender::Sent, &receiver,
            [&](int number, const QString& text) { received = text + QString::number(number); });
    Send();
    EXPECT_EQ(receiver.calls, 1);
    EXPECT_EQ(receiver.sum, 7);
    EXPECT_EQ(received, u"Rex7"_s);
}

TEST_F(FailureGuardTest, ASlotGoesWithItsContext) {
    {
        QObject context;
        Connect(&sender, &Sender::Sent, &context, [this] { receiver.TakeNothing(); });
    }
    Send();
    EXPECT_EQ(receiver.calls, 0);
}

TEST_F(FailureGuardTest, AFailureStopsAtTheSlotAndKeepsLaterOnesFromRunning) {
    Connect(&sender, &Sender::Sent, &receiver, [] { Fail("first"); });
    Connect(&sender, &Sender::Sent, &receiver, &Receiver::TakeNothing);
    EXPECT_NO_THROW(Send());
    EXPECT_EQ(receiver.calls, 0);
    EXPECT_FALSE(Guarded([] {}));
}

TEST_F(FailureGuardTest, TheFirstFailureWins) {
    for (const char* text : {"first", "second"}) {
        try {
            Fail(text);
        } catch (...) {
            KeepFailure();
        }
    }
    try {
        RethrowFailure();
        FAIL() << "nothing was kept";
    } catch (const StoreError& failure) {
        EXPECT_STREQ(failure.what(), "first");
    }
}

TEST_F(FailureGuardTest, RaisedAgainOutsideOfGuardsAFailureIsGone) {
    Guarded([] { Fail("once"); });
    EXPECT_THROW(RethrowFailure(), StoreError);
    EXPECT_FALSE(IsFailureKept());
    EXPECT_NO_THROW(RethrowFailure());
}

TEST_F(FailureGuardTest, NobodyOnTheWayUpSwallowsAFailure) {
    Connect(&sender, &Sender::Sent, &receiver, [] { Fail("inner"); });
    Guarded([this] {
        try {
            Send();
            RethrowFailure();
        } catch (const StoreError&) {
        }
    });
    EXPECT_TRUE(IsFailureKept());
}

TEST_F(FailureGuardTest, AnAnswerComesFromTheHandlerUnlessItFails) {
    EXPECT_EQ(GuardedAnswer(1, [] { return 2; }), 2);
    EXPECT_EQ(GuardedAnswer(1, []() -> int { Fail("broken"); }), 1);
}

TEST_F(FailureGuardTest, WhatIsPutOffRunsUnderGuardToo) {
    Later(&receiver, [] { throw std::runtime_error("later"); });
    EXPECT_FALSE(IsFailureKept());
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(IsFailureKept());
}

} // namespace
} // namespace lorvo

#include "failure_guard_test.moc"
