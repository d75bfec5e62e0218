// Runs of reads and edits: what is on disk when, and at what cost.

#include "platform/values/errors.h"
#include "store/query.h"
#include "store/rings_test.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using RunsTest = RingsTest;

TEST_F(RunsTest, AFailureHalfwayLeavesWhatWasWritten) {
    const auto failHalfway = [this] {
        EditRun run(module.Conn1);
        AddRing();
        AddRing();
        module.rsKruhy.Open("SELECT Nic FROM Kruhy");
    };
    EXPECT_THROW(failHalfway(), StoreError);
    EXPECT_EQ(RingsOutside(), 2);
    AddRing();
    EXPECT_EQ(RingsOutside(), 3);
}

TEST_F(RunsTest, AFailedEditTakesNothingElseWithIt) {
    EditRun run(module.Conn1);
    AddRing();
    module.rsKruhy.Open("SELECT * FROM Kruhy");
    module.rsKruhy.AddNew();
    module.rsKruhy.Set("ID", 1);
    EXPECT_THROW(module.rsKruhy.Update(), StoreError);
    AddRing();
    run.Finish();
    EXPECT_EQ(RingsOutside(), 2);
}

TEST_F(RunsTest, InnerRunsShareTheOuterOne) {
    EditRun outer(module.Conn1);
    {
        const EditRun inner(module.Conn1);
        const ReadRun reading(module.Conn1);
        AddRing();
    }
    EXPECT_EQ(RingsOutside(), 0);
    outer.Finish();
    EXPECT_EQ(RingsOutside(), 1);
    outer.Finish(); // once is enough
    AddRing();
    EXPECT_EQ(RingsOutside(), 2);
}

TEST_F(RunsTest, ARunThatCantBeginLeavesNoRunBehind) {
    module.Conn1.Close();
    EXPECT_THROW(EditRun(module.Conn1), StoreError);
    EXPECT_THROW(ReadRun(module.Conn1), StoreError);
    module.Conn1.Open(database.Path());
    AddRing();
    EXPECT_EQ(RingsOutside(), 1);
}

TEST_F(RunsTest, AReadRunStandsInOneTransaction) {
    const ReadRun run(module.Conn1);
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "0");
    database.Execute("INSERT INTO Kruhy (Nazev) VALUES ('odjinud')");
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "0");
}

TEST_F(RunsTest, AnEditInsideAReadRunIsOnDiskAtOnce) {
    const ReadRun run(module.Conn1);
    ValueOf("SELECT COUNT(*) FROM Kruhy");
    AddRing();
    EXPECT_EQ(RingsOutside(), 1);
    {
        const EditRun edits(module.Conn1);
        AddRing();
    }
    EXPECT_EQ(RingsOutside(), 2);
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "2");
}

TEST_F(RunsTest, ClosingEndsARunAndKeepsItsEdits) {
    EditRun run(module.Conn1);
    AddRing();
    database.Reopen();
    EXPECT_EQ(RingsOutside(), 1);
    AddRing();
    EXPECT_EQ(RingsOutside(), 2);
    run.Finish();
}

TEST_F(RunsTest, ARunNeedsAnOpenConnection) {
    module.Conn1.Close();
    EXPECT_THROW(EditRun{module.Conn1}, StoreError);
    EXPECT_THROW(ReadRun{module.Conn1}, StoreError);
    module.Conn1.Open(database.Path());
    AddRing();
    EXPECT_EQ(RingsOutside(), 1);
}

TEST_F(RunsTest, ARowCanBeEditedWhileAQueryStandsOnIt) {
    for (int i = 0; i < 5; ++i)
        AddRing();
    Query rings(module.Conn1, "SELECT ID FROM Kruhy");
    int walked = 0;
    for (; rings.Next(); ++walked) {
        module.rsKruhy.Open("SELECT * FROM Kruhy WHERE ID = " + Number(rings.Int(0)));
        module.rsKruhy.Set("Nazev", u"x"_s);
        module.rsKruhy.Update();
    }
    EXPECT_EQ(walked, 5);
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy WHERE Nazev = 'x'"), "5");
}

} // namespace
} // namespace lorvo
