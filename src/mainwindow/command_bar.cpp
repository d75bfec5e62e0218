#include "mainwindow/command_bar.h"

#include "app/help.h"
#include "app/main_window_services.h"
#include "dogs/fm_DogsList.h"
#include "mainwindow/window_opener.h"
#include "office/tree/node_key.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "setup/fm_Plemena.h"

#include <QAction>
#include <QMap>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kContextHelp = u"HELP:CONTEXT"_s;

/// The window that a command opens.
const QMap<QString, QString>& WindowsOfCommands() {
    static const QMap<QString, QString> windows = {
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
    return windows;
}

} // namespace

MainCommandBar::MainCommandBar(CommandTarget& target, QObject* parent)
    : CommandCollection(u"cmdBar"_s,
                        {u"ADD"_s, u"TABLES"_s, u"EXPORT"_s, u"SETTINGS"_s, u"HELP"_s, u"COLORS"_s},
                        parent),
      target_(target) {
    Connect(this, &CommandCollection::CommandClick, this, &MainCommandBar::Run);
}

void MainCommandBar::Run(const QString& key) {
    if (WindowsOfCommands().contains(key))
        OpenWindowOf(key);
    else if (key == u"ADD:CIRCLE")
        target_.AddRing();
    else if (key == u"ADD:DOG")
        target_.AddDog();
    else if (key == u"HELP:ABOUT")
        target_.ShowAbout();
    else if (key == u"HELP:GENERAL")
        OpenHelp();
    else if (key == kContextHelp)
        SwitchContextHelp();
}

void MainCommandBar::OpenWindowOf(const QString& key) {
    const std::unique_ptr<Form> closed = Open(WindowsOfCommands().value(key));
    if (const auto* breeds = dynamic_cast<const fm_Plemena*>(closed.get()))
        ReturnFromBreeds(breeds->Result());
    else if (const auto* dogs = dynamic_cast<const fm_DogsList*>(closed.get()))
        ReturnFromDogs(*dogs);
}

void MainCommandBar::ReturnFromBreeds(const RegisterResult& result) {
    MainWindowServices& mainWindow = TheMainWindow();
    if (result.changed) {
        mainWindow.LoadData();
        target_.RefreshNodeOnShow();
    }
    if (result.jumpTo <= 0)
        return;
    const QString breed = NodeKey::Breed(result.jumpTo).ToText();
    target_.FocusTree();
    mainWindow.MakeNodeVisible(breed);
    mainWindow.SelectNode(breed);
    ThePlatform().ui->ProcessEvents();
    mainWindow.ShowNodeInfo(breed);
}

void MainCommandBar::ReturnFromDogs(const fm_DogsList& dogs) {
    if (!dogs.JumpedToDog())
        return;
    target_.FocusTree();
    TheMainWindow().ShowNodeInfo(TheMainWindow().SelectedNode());
}

void MainCommandBar::SwitchContextHelp() {
    target_.SetHelpPointer(Action(kContextHelp)->isChecked());
}

void MainCommandBar::NodeClicked() {
    QAction* contextHelp = Action(kContextHelp);
    if (!contextHelp->isChecked())
        return;
    OpenHelp();
    target_.SetHelpPointer(false);
    contextHelp->setChecked(false);
}

} // namespace lorvo
