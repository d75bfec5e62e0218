#include "mainwindow/node_panels.h"

#include "app/module_values.h"
#include "app/view_preferences.h"
#include "forms/controls.h"
#include "forms/light_palette.h"
#include "mainwindow/breed_panel.h"
#include "mainwindow/card_actions.h"
#include "mainwindow/class_panel.h"
#include "mainwindow/dog_panel.h"
#include "mainwindow/fci_panel.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/node_title.h"
#include "mainwindow/owner_panel.h"
#include "mainwindow/panel_area.h"
#include "mainwindow/panel_builders.h"
#include "mainwindow/ring_panel.h"
#include "mainwindow/status_panels.h"
#include "mainwindow/window_opener.h"
#include "office/tree/node_history.h"
#include "platform/failure_guard.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QStackedWidget>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// How many nodes the path to a node has, itself included.
int PathLength(const TreeNode& node, bool withClasses) {
    switch (node.Kind()) {
    case NodeKind::UnassignedRoot:
    case NodeKind::Ring:
        return 1;
    case NodeKind::Breed:
        return 2;
    case NodeKind::Class:
        return 3;
    case NodeKind::Dog:
        break;
    }
    const bool belowClass = node.parent && node.parent->Kind() == NodeKind::Class;
    return withClasses && belowClass ? 4 : 3;
}

/// A text that wraps makes its section higher, and a title takes room from the sections, which then
/// ask for theirs once more: neither is painted before all stand in their places.
void LayOutAtOnce() {
    for (int times = 0; times < 4; ++times)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

} // namespace

NodePanels::NodePanels(MainTree& tree, StatusPanels& status, NodeHistory& history,
                       const ViewPreferences& look, QWidget* parent)
    : QWidget(parent), tree_(tree), nodes_(tree.Nodes()), status_(status), history_(history),
      look_(look), title_(new NodeTitle(
                       history, [this](const QString& key) { ShowNodeInfo(key); }, this)),
      stack_(new QStackedWidget(this)), nothing_(new QWidget), picKruhInfo(new RingPanel(nullptr)),
      picPlemenoInfo(new BreedPanel(nullptr)), picTridaInfo(new ClassPanel(nullptr)),
      picFCIInfo(new FciPanel(nullptr)), picPesInfo(new DogPanel(nullptr)),
      picMajitelInfo(new OwnerPanel(nullptr)) {
    setObjectName(u"picDetails"_s);
    KeepLight(*this);
    setAutoFillBackground(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(title_);
    column->addWidget(stack_, 1);
    for (QWidget* panel :
         std::initializer_list<QWidget*>{nothing_, picKruhInfo, picPlemenoInfo, picTridaInfo,
                                         picFCIInfo, picPesInfo, picMajitelInfo})
        AddPanel(panel);
    navigation_ = std::make_unique<OwnerNavigation>(tree, *this);
    actions_ =
        std::make_unique<CardActions>(tree, *this, *picPesInfo, *picMajitelInfo, *navigation_);
    Connect(picKruhInfo, &RingPanel::EditClicked, this, &NodePanels::EditRing);
    Connect(tree.model(), &QAbstractItemModel::rowsRemoved, this, &NodePanels::EmptyWithoutNode);
    Connect(tree.model(), &QAbstractItemModel::modelReset, this, &NodePanels::EmptyWithoutNode);
}

NodePanels::~NodePanels() = default;

void NodePanels::ShowNodeInfo(const QString& key) {
    ShowNodeInfo(nodes_.Get(key));
}

void NodePanels::ShowSelectedNode() {
    if (const TreeNode* node = tree_.SelectedNode())
        ShowNodeInfo(*node);
}

void NodePanels::ShowNodeInfo(const TreeNode& node) {
    history_.Record(node.Key());
    title_->UpdateButtons();
    ShowNode(node);
}

void NodePanels::Refresh() {
    const TreeNode* node = NodeOnShow();
    if (IsOwnerOnShow())
        RefillOwnerDogs();
    else if (node)
        ShowNode(*node);
}

const TreeNode* NodePanels::NodeOnShow() const {
    const std::initializer_list<const QWidget*> ofNodes = {
        picKruhInfo, picPlemenoInfo, picTridaInfo, picPesInfo, picMajitelInfo};
    return std::ranges::count(ofNodes, InFront()) ? nodes_.Find(onShow_) : nullptr;
}

void NodePanels::ShowNode(const TreeNode& node) {
    const auto layOut = qScopeGuard(LayOutAtOnce);
    onShow_ = node.Key();
    nodes_.ClearPath();
    SetPicture(tree_.IconOf(node));
    SetTitle(node.text);
    // A ring that the store doesn't know yet has no figures.
    if (!node.keyed)
        return;
    ShowPanelOf(node);
    MarkPath(node);
}

void NodePanels::ShowPanelOf(const TreeNode& node) {
    switch (node.Kind()) {
    case NodeKind::UnassignedRoot:
    case NodeKind::Ring:
        ShowRing(node);
        break;
    case NodeKind::Breed:
        ShowBreed(node);
        break;
    case NodeKind::Class:
        ShowClass(node);
        break;
    case NodeKind::Dog:
        ShowDog(node.Id());
        break;
    }
}

void NodePanels::ShowRing(const TreeNode& ring) {
    BringToFront(picKruhInfo);
    picKruhInfo->SetEditable(ring.Kind() == NodeKind::Ring);
    picKruhInfo->ShowFigures(FiguresOfRing(ring.Id()));
}

void NodePanels::ShowBreed(const TreeNode& breed) {
    SetTitle(TitleOfBreed(breed.Id()));
    BringToFront(picPlemenoInfo);
    picPlemenoInfo->ShowFigures(FiguresOfBreed(breed.Id()));
}

void NodePanels::ShowClass(const TreeNode& node) {
    BringToFront(picTridaInfo);
    picTridaInfo->ShowDogCount(DogCountOfClass(node.Id(), node.key.trida));
}

// kept: fci-panel-out-of-reach
void NodePanels::ShowFciGroup(int group) {
    BringToFront(picFCIInfo);
    picFCIInfo->ShowFigures(FiguresOfFci(group));
}

void NodePanels::ShowDog(int psiID) {
    BringToFront(picPesInfo);
    // A failure leaves on show what was filled before it.
    const auto show = qScopeGuard([this] {
        SetTitle(dogCard_.title);
        picPesInfo->ShowCard(dogCard_);
        NoteCurrent();
    });
    FillDogCard(dogCard_, psiID);
}

void NodePanels::ShowOwner() {
    const int owner = Module().CurrentOwner = dogCard_.MajitelID;
    BringToFront(picMajitelInfo);
    FillOwnerLines(ownerCard_, owner);
    SetTitle(ownerCard_.title);
    SetPicture(ProgramIcon(u"owner"_s));
    RefillOwnerDogs();
}

bool NodePanels::IsOwnerOnShow() const {
    return InFront() == picMajitelInfo;
}

void NodePanels::RefillOwnerDogs() {
    const auto show = qScopeGuard([this] {
        picMajitelInfo->ShowCard(ownerCard_);
        NoteCurrent();
    });
    Module().CurrentOwner = ownerCard_.ID;
    FillOwnerDogs(ownerCard_, ownerCard_.ID);
}

void NodePanels::NoteCurrent() {
    const ModuleValues& shared = Module();
    current_ = {shared.CurrentDogID, shared.CurrentOwner};
}

void NodePanels::RestoreCurrent() const {
    ModuleValues& shared = Module();
    shared.CurrentDogID = current_.dog;
    shared.CurrentOwner = current_.owner;
}

void NodePanels::Empty() {
    onShow_.clear();
    current_ = {};
    RestoreCurrent();
    HidePanels();
    SetTitle(QString());
    SetPicture(QIcon());
    status_.Clear();
    status_.ShowPanels(0);
}

// A panel whose node has gone would act on a record that is gone or stands elsewhere.
void NodePanels::EmptyWithoutNode() {
    if (!onShow_.isEmpty() && !nodes_.Find(onShow_))
        Empty();
}

void NodePanels::MarkPath(const TreeNode& node) {
    std::vector<TreeNode*> ancestors;
    const int length = PathLength(node, look_.showClasses);
    for (TreeNode* above = node.parent; above && std::ssize(ancestors) + 1 < length;
         above = above->parent)
        ancestors.insert(ancestors.begin(), above);
    int panel = 0;
    for (TreeNode* ancestor : ancestors) {
        nodes_.MarkOnPath(ancestor);
        status_.SetPanel(++panel, ancestor->text, tree_.IconOf(*ancestor));
    }
    status_.SetPanel(++panel, node.text, tree_.IconOf(node));
    status_.ShowPanels(panel);
    while (panel < StatusPanels::kCount)
        status_.SetPanel(++panel, QString());
}

// The ring's window works on the selected node, which the history may have left behind.
void NodePanels::EditRing() {
    tree_.SelectNode(&nodes_.Get(onShow_));
    Open(u"frmNazevKruhu"_s);
}

void NodePanels::SetTitle(const QString& title) {
    title_->SetText(title);
}

void NodePanels::SetPicture(const QIcon& icon) {
    title_->SetPicture(icon);
}

void NodePanels::AddPanel(QWidget* panel) {
    auto* area = new PanelArea(u"area."_s + panel->objectName(), stack_);
    area->setWidget(panel);
    stack_->addWidget(area);
}

QWidget* NodePanels::InFront() const {
    return static_cast<const QScrollArea*>(stack_->currentWidget())->widget();
}

void NodePanels::BringToFront(QWidget* panel) {
    for (int page = 0; page < stack_->count(); ++page)
        if (static_cast<const QScrollArea*>(stack_->widget(page))->widget() == panel)
            stack_->setCurrentIndex(page);
}

void NodePanels::HidePanels() {
    BringToFront(nothing_);
}

} // namespace lorvo
