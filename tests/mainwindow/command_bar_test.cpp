#include "forms/report_list.h"
#include "mainwindow/fm_main_fixture.h"
#include "platform/values/errors.h"
#include "setup/breed_register.h"
#include "setup/breed_tree.h"
#include "store/kruhy.h"
#include "support/modal_driver.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class CommandBarTest : public MainWindowTest {
  protected:
    QAction& Command(const QString& key) { return Control<QAction>(key); }
    QToolButton& Button(const QString& key) {
        auto& bar = Control<QToolBar>(u"STANDARD"_s);
        return *qobject_cast<QToolButton*>(bar.widgetForAction(&Command(key)));
    }
    /// Captions of a drop-down bar, "---" for a separator.
    QString MenuTexts(const QString& key) {
        QStringList texts;
        for (const QAction* entry : Command(key).menu()->actions())
            texts << (entry->isSeparator() ? u"---"_s : entry->text());
        return texts.join(u" | "_s);
    }
    /// Opens the register and chooses entries of a breed's menu there.
    void ChooseInRegister(int breed, std::initializer_list<int> numbers) {
        test::WhileOpen([this] { Control<MainCommandBar>(u"cmdBar"_s).Run(u"TABLES:PLEMENA"_s); },
                        [&](QWidget& window) {
                            auto& breeds = test::Control<BreedTree>(window, "tvwPlemena");
                            const BreedNode& node = *breeds.Model().Find(breed);
                            breeds.SelectNode(node);
                            for (const int number : numbers) {
                                platform_.ExpectMenu(number);
                                QTest::mouseClick(
                                    breeds.viewport(), Qt::RightButton, {},
                                    breeds.visualRect(breeds.Model().IndexOf(node)).center());
                            }
                        });
    }
    void ClickNode(const QString& key) {
        window_->MakeNodeVisible(key);
        const auto& model = static_cast<TreeModel&>(*Tree().model());
        const QRect row = Tree().visualRect(model.IndexOf(Tree().Nodes().Find(key)));
        const QPoint onPicture(row.left() + row.height() / 2, row.center().y());
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, onPicture);
    }
};

TEST_F(CommandBarTest, StandOnTheBarWithTheirCaptions) {
    Start();
    auto& bar = Control<QToolBar>(u"STANDARD"_s);
    QStringList captions;
    for (QAction* action : bar.actions()) {
        captions << action->text();
        auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
        EXPECT_EQ(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        EXPECT_FALSE(action->icon().isNull());
        EXPECT_TRUE(action->shortcut().isEmpty());
    }
    EXPECT_EQ(captions.join(u' '), u"Přidat Tabulky Export Nastavení Nápověda"_s);
    EXPECT_EQ(Control<QObject>(u"cmdBar"_s).parent(), window_.get());
}

TEST_F(CommandBarTest, DropDownTheBarsOfTheSameName) {
    Start();
    EXPECT_EQ(MenuTexts(u"ADD"_s), u"Přidat &kruh | Přidat p&sa"_s);
    EXPECT_EQ(MenuTexts(u"TABLES"_s),
              u"Seznam psů | Seznam plemen | --- | Výstavy | Soutěže | Vystavovatelé | Přehled "
              u"plateb | Ocenění ve výstavních třídách | --- | Rodiče"_s);
    EXPECT_EQ(MenuTexts(u"EXPORT"_s),
              u"Katalog | Seznam psů | Diplomy | Přehled plemen | Seznam vystavovatelů | "
              u"Posudkové listy | Pozvánky | Přehled plateb"_s);
    EXPECT_EQ(MenuTexts(u"HELP"_s), u"Nápověda | O programu"_s);
    EXPECT_EQ(Button(u"ADD"_s).popupMode(), QToolButton::InstantPopup);
    EXPECT_FALSE(Command(u"SETTINGS"_s).menu());
}

TEST_F(CommandBarTest, WithoutAButtonAreInNoMenu) {
    Start();
    for (const QString& key : {u"ADD:RACE"_s, u"TABLES:BARVY"_s, u"HELP:CONTEXT"_s})
        EXPECT_TRUE(Command(key).associatedObjects().isEmpty()) << key.toStdString();
}

TEST_F(CommandBarTest, OpenTheirWindows) {
    const std::pair<QString, QString> kWindows[] = {
        {u"SETTINGS"_s, u"fm_Settings"_s},
        {u"TABLES:PLEMENA"_s, u"fm_Plemena"_s},
        {u"TABLES:PSI"_s, u"fm_DogsList"_s},
        {u"TABLES:BARVY"_s, u"fm_Colors"_s},
        {u"TABLES:SOUTEZE"_s, u"fm_Souteze"_s},
        {u"TABLES:VYSTAVY"_s, u"frmVystavy"_s},
        {u"TABLES:VYSTAVOVATELE"_s, u"frmVystavovatele"_s},
        {u"TABLES:OCENENI"_s, u"frmOceneni"_s},
        {u"TABLES:PLATBY"_s, u"frmPrehledPlateb"_s},
        {u"TABLES:RODICE"_s, u"frmParents"_s},
        {u"EXPORT:SEZNAMPSU"_s, u"frmTiskSeznamuPsu"_s},
        {u"EXPORT:DIPLOMY"_s, u"fmDiplom"_s},
        {u"EXPORT:PREHLEDPLEMEN"_s, u"frmPrehledPlemen"_s},
        {u"EXPORT:SEZNAMVYSTAVOVATELU"_s, u"frmTiskSeznamVystavovatelu"_s},
        {u"EXPORT:POSUDKOVELISTY"_s, u"frmTiskPosudku"_s},
        {u"EXPORT:KATALOG"_s, u"frmTiskKatalog"_s},
        {u"EXPORT:POZVANKY"_s, u"frmTiskPozvanek"_s},
        {u"EXPORT:PLATBY"_s, u"frmTiskPlateb"_s},
    };
    for (const auto& [key, window] : kWindows) {
        int opened = 0;
        const StandIn standIn(window, [&opened] { ++opened; });
        Start();
        EXPECT_TRUE(Command(key).isEnabled()) << key.toStdString();
        Command(key).trigger();
        EXPECT_EQ(opened, 1) << window.toStdString();
        window_.reset();
    }
}

TEST_F(CommandBarTest, AWindowThatTheProgramLacksIsAFailure) {
    EXPECT_THROW(Open(u"frmZvirata"_s), Error);
}

TEST_F(CommandBarTest, SettingsOpenByOneClick) {
    int opened = 0;
    const StandIn settings(u"fm_Settings"_s, [&opened] { ++opened; });
    Start();
    QTest::mouseClick(&Button(u"SETTINGS"_s), Qt::LeftButton);
    EXPECT_EQ(opened, 1);
}

TEST_F(CommandBarTest, HelpIsTheFileInTheProgramFolder) {
    Start();
    Command(u"HELP:GENERAL"_s).trigger();
    EXPECT_EQ(platform_.openedFiles, QStringList{platform_.ProgramFolder() + u"/Lorvo.chm"_s});
}

TEST_F(CommandBarTest, AddingABreedIsAcceptedAndDoesNothing) {
    AddSmallShow();
    Start();
    const int nodes = Tree().Nodes().Count();
    Command(u"ADD:RACE"_s).trigger();
    EXPECT_EQ(Tree().Nodes().Count(), nodes);
    EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(CommandBarTest, AddingARingStoresIt) {
    Start();
    Command(u"ADD:CIRCLE"_s).trigger();
    ASSERT_EQ(Tree().Nodes().Count(), 2);
    EXPECT_EQ(Tree().Nodes().Last()->text, u"Nový kruh"_s);
}

TEST_F(CommandBarTest, AddingADogNeedsABreed) {
    Start();
    platform_.ExpectMessage(u"Není vybráno plemeno, do kterého se má pes přidat"_s);
    Command(u"ADD:DOG"_s).trigger();
}

TEST_F(CommandBarTest, AClickWithTheHelpPointerOpensTheHelpOnceAndShowsTheNode) {
    AddSmallShow();
    Start();
    Command(u"HELP:CONTEXT"_s).trigger();
    EXPECT_EQ(window_->cursor().shape(), Qt::WhatsThisCursor);
    ClickNode(u"R10"_s);
    EXPECT_EQ(platform_.openedFiles.size(), 1);
    EXPECT_EQ(window_->cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(Command(u"HELP:CONTEXT"_s).isChecked());
    EXPECT_TRUE(Title().startsWith(u"Pudl"_s));
    ClickNode(u"K1"_s);
    EXPECT_EQ(platform_.openedFiles.size(), 1);
}

TEST_F(CommandBarTest, TheHelpPointerCanBeSwitchedOffAgain) {
    Start();
    Command(u"HELP:CONTEXT"_s).trigger();
    Command(u"HELP:CONTEXT"_s).trigger();
    EXPECT_EQ(window_->cursor().shape(), Qt::ArrowCursor);
    EXPECT_TRUE(platform_.openedFiles.isEmpty());
}

TEST_F(CommandBarTest, ABreedChosenInTheRegisterIsSelectedAndShown) {
    AddSmallShow();
    Start();
    ChooseInRegister(11, {kMenuJump});
    EXPECT_EQ(window_->SelectedNode(), u"R11"_s);
    EXPECT_TRUE(Title().startsWith(u"Vipet"_s));
    EXPECT_EQ(window_->focusWidget(), &Tree());
}

TEST_F(CommandBarTest, AChangedRegisterRebuildsTheTreeBeforeTheJump) {
    AddSmallShow();
    AddBreed(12, "Čuvač", 0);
    Start();
    ChooseInRegister(12, {kMenuRing + 1, kMenuJump});
    EXPECT_EQ(window_->SelectedNode(), u"R12"_s);
    EXPECT_EQ(window_->Nodes().Get(u"R12"_s).parent->Key(), u"K1"_s);
}

TEST_F(CommandBarTest, AJumpToABreedThatTheTreeLacksFails) {
    AddSmallShow();
    AddBreed(77, "Čuvač", 9); // in a ring that is gone
    Start();
    EXPECT_THROW(ChooseInRegister(77, {kMenuJump}), Error);
}

TEST_F(CommandBarTest, ABreedPutIntoAnotherRingInTheRegisterStaysOnShowWithItsNewPath) {
    AddSmallShow();
    database_.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (2, 'Kruh B')");
    Start();
    ClickNode(u"R10"_s);
    EXPECT_EQ(Status(1), u"Kruh A"_s);
    ChooseInRegister(10, {kMenuRing + 2});
    EXPECT_EQ(Status(1), u"Kruh B"_s);
    EXPECT_EQ(Tree().Nodes().Get(u"K2"_s).background, kPathBackground);
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList{u"K2"_s});
    EXPECT_EQ(window_->SelectedNode(), QString()) << "as after every rebuild";
}

TEST_F(CommandBarTest, WithoutAJumpTheSelectionStays) {
    AddSmallShow();
    const StandIn plemena(u"fm_Plemena"_s, {});
    Start();
    window_->SelectNode(u"P100"_s);
    Command(u"TABLES:PLEMENA"_s).trigger();
    EXPECT_EQ(window_->SelectedNode(), u"P100"_s);
}

TEST_F(CommandBarTest, ADogChosenInTheListIsShown) {
    AddSmallShow();
    database_.Execute("INSERT INTO Majitele (ID, Jmeno) VALUES (5, 'Jana');"
                      "UPDATE Psi SET MajitelID = 5 WHERE ID = 101");
    Start();
    test::WhileOpen([this] { Command(u"TABLES:PSI"_s).trigger(); },
                    [](QWidget& window) {
                        auto& list = test::Control<ReportList>(window, "lvwList");
                        list.setCurrentIndex(list.model()->index(0, 0));
                        QTest::keyClick(&list, Qt::Key_Return);
                    });
    EXPECT_TRUE(Title().startsWith(u"Brok"_s)) << Title().toStdString();
    EXPECT_EQ(window_->focusWidget(), &Tree());
}

} // namespace
} // namespace lorvo
