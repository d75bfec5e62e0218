// The page for after the show: what goes is told, then goes, with a copy before.

#include "manager/manager_fixture.h"

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

class PeoplePageTest : public ManagerPageTest {
  protected:
    PeoplePageTest() {
        TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
        Add("Majitele", {{"Jmeno", Text("Eva Nová")}, {"Email", Text("eva@example.org")}});
        TheDataModule().Conn1.Close();
        Show(3);
    }
    QString OwnersMail() {
        TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
        const QString mail = ReadTexts("SELECT Email FROM Majitele").front();
        TheDataModule().Conn1.Close();
        return mail;
    }
};

TEST_F(PeoplePageTest, NothingGoesBeforeItWasTold) {
    EXPECT_FALSE(IsOffered("cmdRemove"));
    Press("cmdPreview");
    EXPECT_TRUE(LabelText("lblNahled").contains(u"Vystavovatelé"_s));
    EXPECT_TRUE(IsOffered("cmdRemove"));
}

TEST_F(PeoplePageTest, AStornoLeavesEverythingAndAYesRemovesItAfterACopy) {
    Press("cmdPreview");
    platform.ExpectMessage(u"Skutečně vymazat údaje osob?"_s, MessageAnswer::Cancel);
    Press("cmdRemove");
    EXPECT_EQ(OwnersMail(), u"eva@example.org"_s);
    platform.ExpectMessage(u"Skutečně vymazat údaje osob?"_s, MessageAnswer::Yes);
    Press("cmdRemove");
    EXPECT_EQ(OwnersMail(), QString());
    EXPECT_EQ(Figures().owners, 1);
    EXPECT_EQ(ListCopies(platform.ProgramFolder(), true).size(), 1u);
    EXPECT_EQ(LabelText("lblNahled"), u"Údaje osob jsou vymazané."_s);
}

TEST_F(PeoplePageTest, BesideLorvoNothingIsRemoved) {
    Press("cmdPreview");
    const ProgramLock lorvo(platform.ProgramFolder());
    platform.ExpectMessage(u"Skutečně vymazat údaje osob?"_s, MessageAnswer::Yes);
    ExpectRefusalBesideLorvo();
    Press("cmdRemove");
    EXPECT_EQ(OwnersMail(), u"eva@example.org"_s);
}

} // namespace
} // namespace lorvo::test
