// The page of the copies: made, compared, put back.

#include "manager/manager_fixture.h"

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

class CopiesPageTest : public ManagerPageTest {
  protected:
    CopiesPageTest() {
        Show(0);
        EXPECT_TRUE(QTest::qWaitFor([this] { return Copies().RowCount() > 0; }));
    }
    ReportList& Copies() { return List("lvwZalohy"); }
    void AddOwner(const char* name) {
        TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
        Add("Majitele", {{"Jmeno", Text(name)}});
        TheDataModule().Conn1.Close();
    }
    void Choose(int row) {
        Copies().setFocus();
        QTest::keyClick(&Copies(), Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(&Copies(), Qt::Key_Down);
    }
};

TEST_F(CopiesPageTest, ThePresentStateStandsFirstAndCanNotBePutBack) {
    EXPECT_EQ(Copies().CellText(0, 0), u"dnešní stav"_s);
    EXPECT_EQ(Copies().CellText(0, 5), u"v pořádku"_s);
    Choose(0);
    EXPECT_FALSE(IsOffered("cmdPutBack"));
    EXPECT_FALSE(IsOffered("cmdCompare"));
}

TEST_F(CopiesPageTest, ACopyIsMadeComparedAndPutBack) {
    AddOwner("Eva");
    Press("cmdMake");
    ASSERT_EQ(Copies().RowCount(), 2);
    EXPECT_EQ(Copies().CellText(1, 2), u"1"_s);
    AddOwner("Jan");
    Choose(1);
    Press("cmdCompare");
    EXPECT_TRUE(LabelText("lblPorovnani").contains(u"Vystavovatelé: přibylo 1"_s))
        << LabelText("lblPorovnani").toStdString();
    platform.ExpectMessage(u"Vrátit stav z kopie "_s + Copies().CellText(1, 0) +
                               u"? Dnešní stav se předtím zkopíruje."_s,
                           MessageAnswer::No);
    Press("cmdPutBack");
    EXPECT_EQ(Figures().owners, 2);
    platform.ExpectMessage(platform.messages.back().text, MessageAnswer::Yes);
    Press("cmdPutBack");
    EXPECT_EQ(Figures().owners, 1);
    EXPECT_EQ(Copies().RowCount(), 3) << "the state before was copied";
}

TEST_F(CopiesPageTest, WhatOtherPagesDidStandsThereOnReturn) {
    ASSERT_EQ(Copies().RowCount(), 1);
    Show(2);
    MakeCopy(platform.ProgramFolder(), platform.now);
    AddOwner("Eva");
    Show(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Copies().RowCount() == 2; }));
    EXPECT_EQ(Copies().CellText(0, 2), u"1"_s);
}

TEST_F(CopiesPageTest, BesideLorvoNothingIsPutBack) {
    AddOwner("Eva");
    Press("cmdMake");
    AddOwner("Jan");
    Choose(1);
    const ProgramLock lorvo(platform.ProgramFolder());
    platform.ExpectMessage(u"Vrátit stav z kopie "_s + Copies().CellText(1, 0) +
                               u"? Dnešní stav se předtím zkopíruje."_s,
                           MessageAnswer::Yes);
    ExpectRefusalBesideLorvo();
    Press("cmdPutBack");
    EXPECT_EQ(Figures().owners, 2);
}

TEST_F(ManagerPageTest, APresentStateThatIsDamagedIsNamedAndTheCopiesAreOffered) {
    MakeCopy(platform.ProgramFolder(), platform.now);
    QFile data(DatabasePath(platform.ProgramFolder()));
    ASSERT_TRUE(data.open(QIODevice::ReadWrite));
    data.write(QByteArray(200, 'x'));
    data.close();
    Show(0);
    ReportList& copies = List("lvwZalohy");
    ASSERT_TRUE(QTest::qWaitFor([&] { return copies.RowCount() == 2; }));
    EXPECT_NE(copies.CellText(0, 5), u"v pořádku"_s);
    EXPECT_FALSE(copies.CellText(0, 5).isEmpty());
    copies.SelectRow(1);
    EXPECT_TRUE(IsOffered("cmdPutBack"));
}

} // namespace
} // namespace lorvo::test
