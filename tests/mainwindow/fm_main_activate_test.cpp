#include "forms/report_list.h"
#include "mainwindow/fm_main_fixture.h"
#include "mainwindow/owner_section.h"
#include "mainwindow/return_watch.h"
#include "platform/values/errors.h"

#include <QWindow>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class MainWindowActivate : public MainWindowTest {
  protected:
    void StartOn(const QString& key) {
        AddSmallShow();
        Start();
        window_->SelectNode(key);
        window_->ShowNodeInfo(key);
        platform_.onProcessEvents = [this] {
            ++turns_;
        };
    }
    void OpenAndClose(std::function<void()> deed = {}) {
        const StandIn window(u"frmStandIn"_s, std::move(deed));
        Open(u"frmStandIn"_s);
    }

    int turns_ = 0; ///< how often Activate has let events run: three times for a selected node
};

TEST_F(MainWindowActivate, RunsOnceAfterAModalWindowAndShowsTheNodeAfresh) {
    StartOn(u"R10"_s);
    OpenAndClose([this] { RenameBreed(10, "Knírač"); });
    EXPECT_TRUE(Title().startsWith(u"Knírač"_s)) << Title().toStdString();
    EXPECT_EQ(turns_, 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(turns_, 3) << "the focus that comes back counts no second time";
    EXPECT_EQ(window_->NodeText(u"R10"_s), u"Pudl"_s) << "the tree isn't rebuilt";
}

TEST_F(MainWindowActivate, RunsOnceAfterWindowsOverWindows) {
    StartOn(u"R10"_s);
    const StandIn upper(u"frmUpper"_s, {});
    OpenAndClose([] { Open(u"frmUpper"_s); });
    EXPECT_EQ(turns_, 3);
}

TEST_F(MainWindowActivate, EitherDirtyFlagRebuildsTheTree) {
    StartOn(u"R10"_s);
    for (bool ModuleValues::*flag : {&ModuleValues::BreedsDirty, &ModuleValues::TreeDirty}) {
        window_->SelectNode(u"R10"_s);
        const QString name = window_->NodeText(u"R10"_s) + u'+';
        OpenAndClose([&] {
            RenameBreed(10, name.toStdString());
            Module().*flag = true;
        });
        EXPECT_FALSE(Module().*flag);
        EXPECT_EQ(window_->NodeText(u"R10"_s), name);
        EXPECT_TRUE(Title().startsWith(name)) << "the panel keeps its node";
        EXPECT_EQ(window_->SelectedNode(), QString()) << "but the new tree selects none";
    }
}

TEST_F(MainWindowActivate, ReadsAgainWhetherClassesAreShown) {
    StartOn(u"R10"_s);
    OpenAndClose([this] {
        Setting(u"Sys\\ShowClasses"_s) = u"1"_s;
        Module().TreeDirty = true;
    });
    EXPECT_TRUE(window_->Look().showClasses);
    EXPECT_TRUE(window_->NodeExists(u"TR10|1"_s));
}

TEST_F(MainWindowActivate, AfterAnOwnersStatementOnlyHisDogsAreRefilled) {
    StartOn(u"R10"_s);
    OpenAndClose([] {
        Module().PaymentsOwner = 5;
        Module().TreeDirty = true;
    });
    EXPECT_EQ(Module().PaymentsOwner, 0);
    EXPECT_TRUE(Module().TreeDirty) << "the tree waits for the next return";
    EXPECT_EQ(turns_, 0);
}

TEST_F(MainWindowActivate, ThePanelInFrontIsReadAfreshAfterAnOwnersStatementToo) {
    StartOn(u"R10"_s);
    OpenAndClose([this] {
        Module().PaymentsOwner = 5;
        RenameBreed(10, "Knírač");
    });
    EXPECT_TRUE(Title().startsWith(u"Knírač"_s));
}

TEST_F(MainWindowActivate, TheDogWorkedOnIsAgainTheOneShownLast) {
    StartOn(u"P100"_s);
    window_->SelectNode(u"R10"_s);
    window_->ShowNodeInfo(u"R10"_s);
    for (const int statement : {0, 5}) {
        OpenAndClose([statement] {
            Module().CurrentDogID = 101;
            Module().CurrentOwner = 77;
            Module().PaymentsOwner = statement;
        });
        EXPECT_EQ(Module().CurrentDogID, 100);
        EXPECT_EQ(Module().CurrentOwner, 0);
    }
}

TEST_F(MainWindowActivate, APanelWithoutASelectedNodeIsReadAfreshToo) {
    StartOn(u"R10"_s);
    window_->LoadData();
    OpenAndClose([this] { RenameBreed(10, "Knírač"); });
    EXPECT_TRUE(Title().startsWith(u"Knírač"_s));
}

TEST_F(MainWindowActivate, ANodeThatIsGoneAfterTheReloadIsPassedOver) {
    StartOn(u"P100"_s);
    OpenAndClose([this] {
        database_.Execute("DELETE FROM Psi WHERE ID = 100");
        Module().TreeDirty = true;
    });
    EXPECT_FALSE(window_->NodeExists(u"P100"_s));
    EXPECT_EQ(turns_, 1);
    EXPECT_EQ(Title(), QString()) << "and its panel is gone too";
    EXPECT_FALSE(Control<QWidget>(u"picPesInfo"_s).isVisible());
}

TEST_F(MainWindowActivate, AReloadThatFailsIsRaisedAndKeepsTheFlag) {
    StartOn(u"R10"_s);
    database_.Execute("DROP TABLE Kruhy");
    Module().TreeDirty = true;
    EXPECT_THROW(window_->Activate(), StoreError);
    EXPECT_TRUE(Module().TreeDirty);
}

TEST_F(MainWindowActivate, APanelThatFailsIsSkippedInSilence) {
    StartOn(u"P100"_s);
    database_.Execute("DROP TABLE Psi");
    window_->Activate();
    EXPECT_EQ(turns_, 3);
    EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(MainWindowActivate, TheKeyboardComesBackToWhatTheWindowWasOpenedFrom) {
    StartOn(u"P100"_s);
    auto& link = Control<QWidget>(u"lblNovaPlatba"_s);
    link.setFocus();
    OpenAndClose();
    EXPECT_EQ(window_->focusWidget(), &link);
    OpenAndClose([this] {
        database_.Execute("DELETE FROM Psi WHERE ID = 100");
        Module().TreeDirty = true;
        window_->SelectNode(u"R10"_s);
    });
    EXPECT_EQ(window_->focusWidget(), &Tree()) << "the link has gone";
}

TEST_F(MainWindowActivate, RunsWhenTheClerkComesBackFromAnotherProgram) {
    StartOn(u"R10"_s);
    RenameBreed(10, "Knírač");
    Q_EMIT qGuiApp->focusWindowChanged(window_->windowHandle());
    Q_EMIT qGuiApp->focusWindowChanged(nullptr);
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(turns_, 0);
    Q_EMIT qGuiApp->focusWindowChanged(window_->windowHandle());
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(turns_, 3);
    EXPECT_TRUE(Title().startsWith(u"Knírač"_s));
}

TEST_F(MainWindowActivate, FocusLostByAWindowOfTheProgramIsNoReturn) {
    StartOn(u"R10"_s);
    QWindow other;
    Q_EMIT qGuiApp->focusWindowChanged(&other);
    Q_EMIT qGuiApp->focusWindowChanged(nullptr);
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    Q_EMIT qGuiApp->focusWindowChanged(window_->windowHandle());
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(turns_, 0);
}

TEST_F(MainWindowActivate, TheOwnersPanelIsFilledAgainAfterHisStatement) {
    AddSmallShow();
    database_.Execute("INSERT INTO Majitele (ID, Jmeno, Prijmeni) VALUES (5, 'Jana', 'Malá')");
    database_.Execute("UPDATE Psi SET MajitelID = 5 WHERE ID = 100");
    Start();
    window_->SelectNode(u"P100"_s);
    window_->ShowNodeInfo(u"P100"_s);
    Q_EMIT window_->findChild<OwnerSection*>()->OwnerClicked(Qt::LeftButton);
    OpenAndClose([this] {
        Module().PaymentsOwner = 5;
        database_.Execute("UPDATE Psi SET Jmeno = 'Astor' WHERE ID = 100");
    });
    EXPECT_EQ(Control<ReportList>(u"lvwDogs"_s).CellText(0, 0), u"Astor"_s);
}

} // namespace
} // namespace lorvo
