#include "mainwindow/command_bar.h"

#include "app/help.h"
#include "app/main_window_services.h"
#include "app/module_values.h"
#include "mainwindow/window_opener.h"
#include "office/tree/node_key.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "setup/fm_Plemena.h"

#include <QAction>
#include <QMap>

namespace lorvo {

namespace {

const QString kContextHelp = QStringLiteral("HELP:CONTEXT");

/// The window that a command opens.
const QMap<QString, QString>& WindowsOfCommands() {
    static const QMap<QString, QString> windows = {
        {QStringLiteral("SETTINGS"), QStringLiteral("fm_Settings")},
        {QStringLiteral("TABLES:PLEMENA"), QStringLiteral("fm_Plemena")},
        {QStringLiteral("TABLES:PSI"), QStringLiteral("fm_DogsList")},
        {QStringLiteral("TABLES:BARVY"), QStringLiteral("fm_Colors")},
        {QStringLiteral("TABLES:SOUTEZE"), QStringLiteral("fm_Souteze")},
        {QStringLiteral("TABLES:VYSTAVY"), QStringLiteral("frmVystavy")},
        {QStringLiteral("TABLES:VYSTAVOVATELE"), QStringLiteral("frmVystavovatele")},
        {QStringLiteral("TABLES:OCENENI"), QStringLiteral("frmOceneni")},
        {QStringLiteral("TABLES:PLATBY"), QStringLiteral("frmPrehledPlateb")},
        {QStringLiteral("TABLES:RODICE"), QStringLiteral("frmParents")},
        {QStringLiteral("EXPORT:SEZNAMPSU"), QStringLiteral("frmTiskSeznamuPsu")},
        {QStringLiteral("EXPORT:DIPLOMY"), QStringLiteral("fmDiplom")},
        {QStringLiteral("EXPORT:PREHLEDPLEMEN"), QStringLiteral("frmPrehledPlemen")},
        {QStringLiteral("EXPORT:SEZNAMVYSTAVOVATELU"),
         QStringLiteral("frmTiskSeznamVystavovatelu")},
        {QStringLiteral("EXPORT:POSUDKOVELISTY"), QStringLiteral("frmTiskPosudku")},
        {QStringLiteral("EXPORT:KATALOG"), QStringLiteral("frmTiskKatalog")},
        {QStringLiteral("EXPORT:POZVANKY"), QStringLiteral("frmTiskPozvanek")},
        {QStringLiteral("EXPORT:PLATBY"), QStringLiteral("frmTiskPlateb")},
    };
    return windows;
}

} // namespace

MainCommandBar::MainCommandBar(CommandTarget& target, QObject* parent)
    : CommandCollection(QStringLiteral("cmdBar"),
                        {QStringLiteral("ADD"), QStringLiteral("TABLES"), QStringLiteral("EXPORT"),
                         QStringLiteral("SETTINGS"), QStringLiteral("HELP"),
                         QStringLiteral("COLORS")},
                        parent),
      target_(target) {
    const auto& windows = WindowsOfCommands();
    for (auto row = windows.begin(); row != windows.end(); ++row)
        Action(row.key())->setEnabled(CanOpen(row.value()));
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
    const QString window = WindowsOfCommands().value(key);
    const std::unique_ptr<Form> closed = Open(window);
    if (const auto* breeds = dynamic_cast<const fm_Plemena*>(closed.get()))
        ReturnFromBreeds(breeds->Result());
    else if (window == u"fm_DogsList")
        ReturnFromDogs();
}

void MainCommandBar::ReturnFromBreeds(const RegisterResult& result) {
    MainWindowServices& mainWindow = TheMainWindow();
    if (result.changed) {
        mainWindow.LoadData();
        target_.SelectNodeOnShow();
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

void MainCommandBar::ReturnFromDogs() {
    if (!Module().ListJumpedToDog)
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
