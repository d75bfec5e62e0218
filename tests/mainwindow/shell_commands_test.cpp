#include "mainwindow/shell_fixture.h"
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
namespace {

class ShellCommands : public Shell {
  protected:
    QAction& Command(const QString& key) { return Control<QAction>(key); }
    QToolButton& Button(const QString& key) {
        auto& bar = Control<QToolBar>(u"STANDARD"_qs);
        return *qobject_cast<QToolButton*>(bar.widgetForAction(&Command(key)));
    }
    /// Captions of a drop-down bar, "---" for a separator.
    QString MenuTexts(const QString& key) {
        QStringList texts;
        for (const QAction* entry : Command(key).menu()->actions())
            texts << (entry->isSeparator() ? u"---"_qs : entry->text());
        return texts.join(u" | "_qs);
    }
    /// Opens the register and chooses entries of a breed's menu there.
    void ChooseInRegister(int breed, std::initializer_list<int> numbers) {
        test::WhileOpen([this] { Control<MainCommandBar>(u"cmdBar"_qs).Run(u"TABLES:PLEMENA"_qs); },
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

TEST_F(ShellCommands, StandOnTheBarWithTheirCaptions) {
    Start();
    auto& bar = Control<QToolBar>(u"STANDARD"_qs);
    QStringList captions;
    for (QAction* action : bar.actions()) {
        captions << action->text();
        auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
        EXPECT_EQ(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        EXPECT_FALSE(action->icon().isNull());
        EXPECT_TRUE(action->shortcut().isEmpty());
    }
    EXPECT_EQ(captions.join(u' '), u"Přidat Tabulky Export Nastavení Nápověda"_qs);
    EXPECT_EQ(Control<QObject>(u"cmdBar"_qs).parent(), window_.get());
}

TEST_F(ShellCommands, DropDownTheBarsOfTheSameName) {
    Start();
    EXPECT_EQ(MenuTexts(u"ADD"_qs), u"Přidat &kruh | Přidat p&sa"_qs);
    EXPECT_EQ(MenuTexts(u"TABLES"_qs),
              u"Seznam psů | Seznam plemen | --- | Výstavy | Soutěže | Vystavovatelé | Přehled "
              u"plateb | Ocenění ve výstavních třídách | --- | Rodiče"_qs);
    EXPECT_EQ(MenuTexts(u"EXPORT"_qs),
              u"Katalog | Seznam psů | Diplomy | Přehled plemen | Seznam vystavovatelů | "
              u"Posudkové listy | Pozvánky | Přehled plateb"_qs);
    EXPECT_EQ(MenuTexts(u"HELP"_qs), u"Nápověda | O programu"_qs);
    EXPECT_EQ(Button(u"ADD"_qs).popupMode(), QToolButton::InstantPopup);
    EXPECT_FALSE(Command(u"SETTINGS"_qs).menu());
}

TEST_F(ShellCommands, WithoutAButtonAreInNoMenu) {
    Start();
    for (const QString& key : {u"ADD:RACE"_qs, u"TABLES:BARVY"_qs, u"HELP:CONTEXT"_qs})
        EXPECT_TRUE(Command(key).associatedObjects().isEmpty()) << key.toStdString();
}

TEST_F(ShellCommands, OpenTheirWindows) {
    const std::pair<QString, QString> kWindows[] = {
        {u"SETTINGS"_qs, u"fm_Settings"_qs},
        {u"TABLES:PLEMENA"_qs, u"fm_Plemena"_qs},
        {u"TABLES:PSI"_qs, u"fm_DogsList"_qs},
        {u"TABLES:BARVY"_qs, u"fm_Colors"_qs},
        {u"TABLES:SOUTEZE"_qs, u"fm_Souteze"_qs},
        {u"TABLES:VYSTAVY"_qs, u"frmVystavy"_qs},
        {u"TABLES:VYSTAVOVATELE"_qs, u"frmVystavovatele"_qs},
        {u"TABLES:OCENENI"_qs, u"frmOceneni"_qs},
        {u"TABLES:PLATBY"_qs, u"frmPrehledPlateb"_qs},
        {u"TABLES:RODICE"_qs, u"frmParents"_qs},
        {u"EXPORT:SEZNAMPSU"_qs, u"frmTiskSeznamuPsu"_qs},
        {u"EXPORT:DIPLOMY"_qs, u"fmDiplom"_qs},
        {u"EXPORT:PREHLEDPLEMEN"_qs, u"frmPrehledPlemen"_qs},
        {u"EXPORT:SEZNAMVYSTAVOVATELU"_qs, u"frmTiskSeznamVystavovatelu"_qs},
        {u"EXPORT:POSUDKOVELISTY"_qs, u"frmTiskPosudku"_qs},
        {u"EXPORT:KATALOG"_qs, u"frmTiskKatalog"_qs},
        {u"EXPORT:POZVANKY"_qs, u"frmTiskPozvanek"_qs},
        {u"EXPORT:PLATBY"_qs, u"frmTiskPlateb"_qs},
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

TEST_F(ShellCommands, OfAWindowThatTheProgramLacksStandGreyed) {
    WindowFactory before = SetWindow(u"frmParents"_qs, {});
    Start();
    EXPECT_FALSE(CanOpen(u"frmParents"_qs));
    EXPECT_FALSE(Command(u"TABLES:RODICE"_qs).isEnabled());
    EXPECT_THROW(Open(u"frmParents"_qs), Error);
    SetWindow(u"frmParents"_qs, std::move(before));
}

TEST_F(ShellCommands, SettingsOpenByOneClick) {
    int opened = 0;
    const StandIn settings(u"fm_Settings"_qs, [&opened] { ++opened; });
    Start();
    QTest::mouseClick(&Button(u"SETTINGS"_qs), Qt::LeftButton);
    EXPECT_EQ(opened, 1);
}

TEST_F(ShellCommands, HelpIsTheFileInTheProgramFolder) {
    Start();
    Command(u"HELP:GENERAL"_qs).trigger();
    EXPECT_EQ(platform_.openedFiles, QStringList{platform_.ProgramFolder() + u"/Lorvo.chm"_qs});
}

TEST_F(ShellCommands, AddingABreedIsAcceptedAndDoesNothing) {
    AddSmallShow();
    Start();
    const int nodes = Tree().Nodes().Count();
    Command(u"ADD:RACE"_qs).trigger();
    EXPECT_EQ(Tree().Nodes().Count(), nodes);
    EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(ShellCommands, AddingARingStoresIt) {
    Start();
    Command(u"ADD:CIRCLE"_qs).trigger();
    ASSERT_EQ(Tree().Nodes().Count(), 2);
    EXPECT_EQ(Tree().Nodes().Last()->text, u"Nový kruh"_qs);
}

TEST_F(ShellCommands, AddingADogNeedsABreed) {
    Start();
    platform_.ExpectMessage(u"Není vybráno plemeno, do kterého se má pes přidat"_qs);
    Command(u"ADD:DOG"_qs).trigger();
}

TEST_F(ShellCommands, AClickWithTheHelpPointerOpensTheHelpOnceAndShowsTheNode) {
    AddSmallShow();
    Start();
    Command(u"HELP:CONTEXT"_qs).trigger();
    EXPECT_EQ(window_->cursor().shape(), Qt::WhatsThisCursor);
    ClickNode(u"R10"_qs);
    EXPECT_EQ(platform_.openedFiles.size(), 1);
    EXPECT_EQ(window_->cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(Command(u"HELP:CONTEXT"_qs).isChecked());
    EXPECT_TRUE(Title().startsWith(u"Pudl"_qs));
    ClickNode(u"K1"_qs);
    EXPECT_EQ(platform_.openedFiles.size(), 1);
}

TEST_F(ShellCommands, TheHelpPointerCanBeSwitchedOffAgain) {
    Start();
    Command(u"HELP:CONTEXT"_qs).trigger();
    Command(u"HELP:CONTEXT"_qs).trigger();
    EXPECT_EQ(window_->cursor().shape(), Qt::ArrowCursor);
    EXPECT_TRUE(platform_.openedFiles.isEmpty());
}

TEST_F(ShellCommands, ABreedChosenInTheRegisterIsSelectedAndShown) {
    AddSmallShow();
    Start();
    ChooseInRegister(11, {kMenuJump});
    EXPECT_EQ(window_->SelectedNode(), u"R11"_qs);
    EXPECT_TRUE(Title().startsWith(u"Vipet"_qs));
    EXPECT_EQ(window_->focusWidget(), &Tree());
}

TEST_F(ShellCommands, AChangedRegisterRebuildsTheTreeBeforeTheJump) {
    AddSmallShow();
    AddBreed(12, "Čuvač", 0);
    Start();
    ChooseInRegister(12, {kMenuRing + 1, kMenuJump});
    EXPECT_EQ(window_->SelectedNode(), u"R12"_qs);
    EXPECT_EQ(window_->ParentNode(u"R12"_qs), u"K1"_qs);
}

TEST_F(ShellCommands, AJumpToABreedThatTheTreeLacksFails) {
    AddSmallShow();
    AddBreed(77, "Čuvač", 9); // in a ring that is gone
    Start();
    EXPECT_THROW(ChooseInRegister(77, {kMenuJump}), Error);
}

TEST_F(ShellCommands, ABreedPutIntoAnotherRingInTheRegisterStaysSelectedWithItsNewPath) {
    AddSmallShow();
    database_.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (2, 'Kruh B')");
    Start();
    ClickNode(u"R10"_qs);
    EXPECT_EQ(Status(1), u"Kruh A"_qs);
    ChooseInRegister(10, {kMenuRing + 2});
    EXPECT_EQ(Status(1), u"Kruh B"_qs);
    EXPECT_EQ(window_->SelectedNode(), u"R10"_qs);
    EXPECT_EQ(Tree().Nodes().Get(u"K2"_qs).background, kPathBackground);
}

TEST_F(ShellCommands, WithoutAJumpTheSelectionStays) {
    AddSmallShow();
    const StandIn plemena(u"fm_Plemena"_qs, {});
    Start();
    window_->SelectNode(u"P100"_qs);
    Command(u"TABLES:PLEMENA"_qs).trigger();
    EXPECT_EQ(window_->SelectedNode(), u"P100"_qs);
}

TEST_F(ShellCommands, ADogChosenInTheListIsShown) {
    AddSmallShow();
    const StandIn list(u"fm_DogsList"_qs, [this] {
        window_->SelectNode(u"P101"_qs);
        Module().ListJumpedToDog = true;
    });
    Start();
    Command(u"TABLES:PSI"_qs).trigger();
    EXPECT_TRUE(Title().startsWith(u"Brok"_qs)) << Title().toStdString();
    EXPECT_EQ(window_->focusWidget(), &Tree());
}

} // namespace
} // namespace lorvo
