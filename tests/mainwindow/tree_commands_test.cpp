// Adding, naming and removing rings, breeds and dogs on the tree.

#include "mainwindow/tree_host.h"
#include "setup/frmNazevKruhu.h"
#include "support/modal_driver.h"
#include "support/window_walk.h"

#include <QLineEdit>
#include <QPushButton>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class TreeCommandsTest : public TreeTest {
  protected:
    TreeCommandsTest() {
        replaced_ = SetWindow(u"frmNazevKruhu"_s, [](const WindowInput&, QWidget* parent) {
            return std::make_unique<frmNazevKruhu>(parent);
        });
    }
    ~TreeCommandsTest() override { SetWindow(u"frmNazevKruhu"_s, std::move(replaced_)); }

    /// Ends the edit in place with a text and Enter, and waits for the panel that follows it.
    void TypeName(const QString& text) {
        ASSERT_NE(Editor(), nullptr);
        Editor()->setText(text);
        host.shown.clear();
        QTest::keyClick(Editor(), Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !host.shown.isEmpty() && !Editor(); }));
    }
    void ExpectQuestion(const QString& text, MessageAnswer answer) {
        platform.ExpectMessage(text, answer, MessageIcon::Question, MessageButtons::YesNoCancel,
                               u"Hlavní okno"_s);
    }
    void ExpectStop(const QString& text) {
        platform.ExpectMessage(text, MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
                               u"Hlavní okno"_s);
    }
    QString RingNames() const {
        return Scalar("SELECT COUNT (*) FROM Kruhy WHERE Nazev = 'Nový kruh'");
    }

  private:
    WindowFactory replaced_;
};

TEST_F(TreeCommandsTest, ALongNameIsCutToWhatAFieldHolds) {
    Choose({}, 601);
    TypeName(QString(300, u'x'));
    EXPECT_EQ(Scalar("SELECT Nazev FROM Kruhy WHERE ID = 3"), QString(255, u'x'));
}

// kept: new-ring-not-bold
TEST_F(TreeCommandsTest, AddsARingAndNamesItInPlace) {
    Choose({}, 601);
    EXPECT_EQ(host.SelectedNode(), u"K3"_s);
    EXPECT_EQ(host.NodeText(u"K3"_s), u"Nový kruh"_s);
    EXPECT_EQ(Node(u"K3"_s).Tag(), QString());
    EXPECT_FALSE(Node(u"K3"_s).bold);
    EXPECT_EQ(Scalar("SELECT Nazev FROM Kruhy WHERE ID = 3"), u"Nový kruh"_s);

    TypeName(u"  Hlavní hala  "_s);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(host.NodeText(u"K3"_s), u"Hlavní hala"_s);
    EXPECT_EQ(host.itemTitle, u"Hlavní hala"_s);
    EXPECT_EQ(Scalar("SELECT Nazev FROM Kruhy WHERE ID = 3"), u"Hlavní hala"_s);
    EXPECT_EQ(host.shown, QStringList{u"K3"_s});
    Load();
    EXPECT_TRUE(Node(u"K3"_s).bold);
    EXPECT_EQ(Node(u"K3"_s).Tag(), u"K3"_s);
}

TEST_F(TreeCommandsTest, KeepsANewRingWhoseNamingIsCancelled) {
    host.commands->AddRing();
    ASSERT_NE(Editor(), nullptr);
    Editor()->setText(u"Jiný"_s);
    QTest::keyClick(Editor(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !host.shown.isEmpty() && !Editor(); }));
    EXPECT_EQ(host.shown, QStringList{u"K3"_s}) << "the edit has ended all the same";
    EXPECT_EQ(host.NodeText(u"K3"_s), u"Nový kruh"_s);
    EXPECT_EQ(RingNames(), u"1"_s);
}

TEST_F(TreeCommandsTest, KeepsTheNameWhenTheNewOneIsEmpty) {
    host.commands->AddRing();
    TypeName(QString());
    EXPECT_EQ(host.NodeText(u"K3"_s), u"Nový kruh"_s);
    EXPECT_EQ(RingNames(), u"1"_s);
    EXPECT_EQ(host.shown, QStringList{u"K3"_s});
}

TEST_F(TreeCommandsTest, ANameEditedInABreedsPlaceIsTheBreeds) {
    host.SelectNode(u"R10"_s);
    Tree().StartLabelEdit(&Node(u"R10"_s));
    TypeName(u"Knírač"_s);
    EXPECT_EQ(host.NodeText(u"R10"_s), u"Knírač"_s);
    EXPECT_EQ(Scalar("SELECT Nazev FROM Plemena WHERE ID = 10"), u"Knírač"_s);
}

TEST_F(TreeCommandsTest, LetsTwoRingsBearOneName) {
    host.commands->AddRing();
    TypeName(u"Nový kruh"_s);
    host.commands->AddRing();
    TypeName(u"Nový kruh"_s);
    EXPECT_EQ(RingNames(), u"2"_s);
}

TEST_F(TreeCommandsTest, StoresANameThatIsLeftByAClickElsewhere) {
    host.commands->AddRing();
    ASSERT_NE(Editor(), nullptr);
    Editor()->setText(u"Hala D'Or"_s);
    Tree().setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Editor(); }));
    EXPECT_EQ(Scalar("SELECT Nazev FROM Kruhy WHERE ID = 3"), u"Hala D'Or"_s);
}

TEST_F(TreeCommandsTest, NamesWithLabelsAndKeysAsEveryWindow) {
    frmNazevKruhu window(nullptr);
    WalkWindow(window);
}

TEST_F(TreeCommandsTest, RenamesARingInItsWindow) {
    host.SelectNode(u"K1"_s);
    WhileOpen([this] { Press(Qt::Key_F2); },
              [](QWidget& window) {
                  auto& name = Control<QLineEdit>(window, "txtName");
                  auto& ok = Control<QPushButton>(window, "cmdOK");
                  EXPECT_EQ(window.windowTitle(), u"Název kruhu"_s);
                  EXPECT_EQ(name.text(), u"A"_s);
                  EXPECT_TRUE(ok.isEnabled());
                  name.clear();
                  EXPECT_FALSE(ok.isEnabled());
                  QTest::keyClicks(&name, u" Hala 1 "_s);
                  QTest::keyClick(&name, Qt::Key_Return);
              });
    EXPECT_EQ(host.NodeText(u"K1"_s), u" Hala 1 "_s);
    EXPECT_EQ(Scalar("SELECT Nazev FROM Kruhy WHERE ID = 1"), u" Hala 1 "_s);
    EXPECT_EQ(host.shown, QStringList{u"K1"_s});
}

TEST_F(TreeCommandsTest, LeavesTheNameWhenTheWindowIsCancelled) {
    WhileOpen([this] { Choose(u"K2"_s, 601); },
              [](QWidget& window) {
                  Control<QLineEdit>(window, "txtName").setText(u"Jiný"_s);
                  Control<QPushButton>(window, "cmdCancel").click();
              });
    EXPECT_EQ(host.SelectedNode(), u"K2"_s);
    EXPECT_EQ(host.NodeText(u"K2"_s), u"B"_s);
    EXPECT_EQ(Scalar("SELECT Nazev FROM Kruhy WHERE ID = 2"), u"B"_s);
}

TEST_F(TreeCommandsTest, NeverRenamesTheUnassignedRootNorWhatIsCalledLikeIt) {
    Load("UPDATE Kruhy SET Nazev = 'Nezařazeno v kruhu' WHERE ID = 2");
    StandInFor(u"frmNazevKruhu"_s);
    for (const char16_t* key : {u"K0", u"K2", u"R10", u"P1"}) {
        host.SelectNode(QString::fromUtf16(key));
        Press(Qt::Key_F2);
    }
    Choose(u"K2"_s, 601);
    EXPECT_EQ(opened, QStringList());
}

TEST_F(TreeCommandsTest, RefusesToRemoveARingWithBreeds) {
    ExpectStop(u"Tento kruh nelze odstranit, obsahuje položky"_s);
    Choose(u"K1"_s, 602);
    EXPECT_TRUE(host.NodeExists(u"K1"_s));
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Kruhy"), u"2"_s);
    EXPECT_EQ(host.shown, QStringList());
}

TEST_F(TreeCommandsTest, RemovesAnEmptyRingOnYesAlone) {
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Cancel}) {
        ExpectQuestion(u"Určitě chcete odstranit kruh B?"_s, answer);
        Choose(u"K2"_s, 602);
        EXPECT_TRUE(host.NodeExists(u"K2"_s));
    }
    ExpectQuestion(u"Určitě chcete odstranit kruh B?"_s, MessageAnswer::Yes);
    Choose(u"K2"_s, 602);
    EXPECT_FALSE(host.NodeExists(u"K2"_s));
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Kruhy"), u"1"_s);
    EXPECT_EQ(host.shown, QStringList{u"K1"_s});
}

TEST_F(TreeCommandsTest, RemovesTheUnassignedRootFromTheTreeUntilTheNextReload) {
    Load("UPDATE Plemena SET ID_Kruhu = 1");
    host.SelectNode(u"K0"_s);
    ExpectQuestion(u"Určitě chcete odstranit kruh Nezařazeno v kruhu?"_s, MessageAnswer::Yes);
    Press(Qt::Key_Delete);
    EXPECT_FALSE(host.NodeExists(u"K0"_s));
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Kruhy"), u"2"_s);
    EXPECT_EQ(host.shown, QStringList{u"K1"_s});
    Load();
    EXPECT_TRUE(host.NodeExists(u"K0"_s));
}

TEST_F(TreeCommandsTest, RemovesABreedWithoutDogsByTheDeleteKey) {
    host.SelectNode(u"R10"_s);
    ExpectStop(u"Toto plemeno nelze odstranit"_s);
    Press(Qt::Key_Delete);
    EXPECT_TRUE(host.NodeExists(u"R10"_s));

    host.SelectNode(u"R30"_s);
    ExpectQuestion(u"Určitě chcete odstranit plemeno Vlastní?"_s, MessageAnswer::Yes);
    Press(Qt::Key_Delete);
    EXPECT_FALSE(host.NodeExists(u"R30"_s));
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Plemena"), u"2"_s);
    EXPECT_EQ(host.shown, (QStringList{u"R10"_s, u"R20"_s}));
}

TEST_F(TreeCommandsTest, RemovesADogAndLeavesWhatBelongedToIt) {
    database.Execute("INSERT INTO PsiVeVystavach VALUES (1, 1);"
                     "INSERT INTO Vazby_Souteze VALUES (1, 1);"
                     "INSERT INTO PsiOceneni VALUES (1, 1);"
                     "INSERT INTO Uhrady (ID_Psa) VALUES (1)");
    Load("UPDATE Psi SET Cislo = 4 WHERE ID = 1");
    Module().CurrentDogID = 3; // the dog shown; the one pointed at goes
    ExpectQuestion(u"Určitě chcete ze seznamu odstranit psa 4 Alík?"_s, MessageAnswer::Yes);
    Choose(u"P1"_s, 601);
    EXPECT_FALSE(host.NodeExists(u"P1"_s));
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Psi"), u"2"_s);
    for (const char* table : {"PsiVeVystavach", "Vazby_Souteze", "PsiOceneni", "Uhrady"})
        EXPECT_EQ(Scalar(std::string("SELECT COUNT (*) FROM ") + table), u"1"_s);
    EXPECT_EQ(host.shown, QStringList{u"P2"_s});
}

TEST_F(TreeCommandsTest, RemovesTheSelectedDogByTheDeleteKeyAndShowsTheNextOnce) {
    host.SelectNode(u"P2"_s);
    ExpectQuestion(u"Určitě chcete ze seznamu odstranit psa Bára?"_s, MessageAnswer::Yes);
    Press(Qt::Key_Delete);
    EXPECT_EQ(host.shown, QStringList{u"P1"_s});
}

TEST_F(TreeCommandsTest, LeavesClassesAlone) {
    host.look.showClasses = true;
    Load();
    host.SelectNode(u"TR10|1"_s);
    Press(Qt::Key_Delete);
    EXPECT_TRUE(host.NodeExists(u"TR10|1"_s));
}

} // namespace
} // namespace lorvo::test
