#include "mainwindow/card_actions.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/messages.h"
#include "mainwindow/awards_section.h"
#include "mainwindow/dog_panel.h"
#include "mainwindow/entries_section.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/node_panels.h"
#include "mainwindow/owner_panel.h"
#include "mainwindow/owner_section.h"
#include "mainwindow/window_opener.h"
#include "office/cards/entry_ticks.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/connection.h"
#include "store/meny.h"

namespace lorvo {

using namespace Qt::StringLiterals;

CardActions::CardActions(MainTree& tree, NodePanels& panels, DogPanel& dogPanel,
                         OwnerPanel& ownerPanel, OwnerNavigation& navigation)
    : tree_(tree), panels_(panels), navigation_(navigation) {
    ConnectDogPanel(dogPanel);
    ConnectOwnerPanel(ownerPanel);
}

void CardActions::ConnectDogPanel(DogPanel& panel) {
    Connect(&panel, &DogPanel::EditClicked, this, &CardActions::EditDog);

    const OwnerSection* owner = &panel.Owner();
    Connect(owner, &OwnerSection::OwnerClicked, this, &CardActions::ClickOwnerName);
    Connect(owner, &OwnerSection::EmailClicked, this, &CardActions::WriteEmail);
    Connect(owner, &OwnerSection::NeighbourClicked, this,
            [this](const QString& key) { navigation_.GoToDog(key); });
    Connect(owner, &OwnerSection::DogListClicked, this, &CardActions::ShowOwnersDogs);
    Connect(owner, &OwnerSection::EditOwnerClicked, this, &CardActions::EditOwner);

    const EntriesSection* entries = &panel.Entries();
    Connect(entries, &EntriesSection::EntriesTicked, this, &CardActions::WriteTickedEntries);
    Connect(entries, &EntriesSection::NewPaymentClicked, this, &CardActions::TakePayment);
    Connect(entries, &EntriesSection::PaymentsClicked, this, &CardActions::ShowPaymentsOfDog);

    Connect(&panel.AwardsList(), &AwardsSection::AwardsTicked, this,
            &CardActions::WriteTickedAwards);
}

void CardActions::ConnectOwnerPanel(OwnerPanel& panel) {
    Connect(&panel, &OwnerPanel::EmailClicked, this, &CardActions::WriteEmail);
    Connect(&panel, &OwnerPanel::PaymentsClicked, this, &CardActions::ShowPaymentsOfOwner);
    Connect(&panel, &OwnerPanel::BackClicked, this, &CardActions::BackToDog);
    Connect(&panel, &OwnerPanel::DogClicked, this,
            [this](const QString& key) { navigation_.SelectDog(key); });
    Connect(&panel, &OwnerPanel::DogDoubleClicked, this, [this] { panels_.ShowSelectedNode(); });
}

// Other windows leave shared values behind, and a rebuilt tree has no node selected: what is done
// on the panel is done to the dog that it shows.
const TreeNode* CardActions::TakeDogOnShow() {
    const DogCard& dog = panels_.Dog();
    const TreeNode* node = tree_.Nodes().Find(NodeKey::Dog(dog.ID));
    if (!node)
        return nullptr;
    if (!tree_.SelectedNode())
        tree_.SelectNode(node);
    ModuleValues& shared = Module();
    shared.CurrentDogID = dog.ID;
    shared.CurrentOwner = dog.MajitelID;
    return node;
}

// kept: classes-of-the-last-breed
void CardActions::EditDog() {
    const TreeNode* dog = TakeDogOnShow();
    if (!dog)
        return;
    // The editor works on the selected node, which the history may have left behind.
    tree_.SelectNode(dog);
    Open(u"fm_Dog"_s, DogTask{false, Module().CurrentBreedID});
}

void CardActions::EditOwner() {
    if (TakeDogOnShow())
        Open(u"frmEditMan"_s);
}

void CardActions::ShowOwnersDogs() {
    if (TakeDogOnShow())
        navigation_.ShowDogMenu();
}

void CardActions::ClickOwnerName(Qt::MouseButton button) {
    if (button == Qt::LeftButton && TakeDogOnShow())
        panels_.ShowOwner();
    else if (button == Qt::RightButton)
        ShowOwnersDogs();
}

void CardActions::WriteEmail(const QString& address) {
    if (address.isEmpty())
        return;
    if (IsEmailValid(address))
        ThePlatform().opener->OpenAddress(u"mailto:"_s + address);
    else
        Inform(panels_, u"Neplatný tvar e-mailové adresy"_s);
}

void CardActions::TakePayment() {
    if (CountCurrencies() == 0)
        return Warn(panels_, u"Platbu nelze přijmout, v seznamu měn není vytvořena žádná "
                             "měna. Můžete ji přidat v okně Nastavení/Měny"_s);
    if (TakeDogOnShow())
        Open(u"frmPlatba"_s);
}

void CardActions::ShowPaymentsOfDog() {
    if (!TakeDogOnShow())
        return;
    Module().PaymentsOwner = 0;
    Open(u"frmUhrady"_s);
}

void CardActions::ShowPaymentsOfOwner() {
    ModuleValues& shared = Module();
    shared.CurrentOwner = shared.PaymentsOwner = panels_.Owner().ID;
    Open(u"frmUhrady"_s);
}

// The events run after the writes and not among them, so that another tick finds all rows written.
void CardActions::WriteTickedEntries(const CheckLines& lines) {
    if (!TakeDogOnShow())
        return;
    WriteEntries(panels_.Dog().ID, lines);
    ThePlatform().ui->ProcessEvents();
    SkipFailure([this] { BackToDog(); });
}

void CardActions::WriteTickedAwards(const CheckLines& awards) {
    if (TakeDogOnShow())
        WriteAwards(panels_.Dog().ID, awards);
}

void CardActions::BackToDog() {
    const TreeNode* selected = tree_.SelectedNode();
    const TreeNode* node = selected ? selected : TakeDogOnShow();
    if (!node)
        return;
    tree_.EnsureVisible(node);
    panels_.ShowNodeInfo(*node);
}

} // namespace lorvo
