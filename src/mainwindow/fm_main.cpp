#include "mainwindow/fm_main.h"

#include "app/common_routines.h"
#include "app/help.h"
#include "app/module_values.h"
#include "app/start_up.h"
#include "forms/access_keys.h"
#include "forms/controls.h"
#include "forms/form_settings.h"
#include "forms/report_list.h"
#include "mainwindow/about_panel.h"
#include "mainwindow/disk_notice.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/node_panels.h"
#include "mainwindow/return_watch.h"
#include "mainwindow/status_panels.h"
#include "mainwindow/tree_commands.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/data_module.h"

#include <QCloseEvent>
#include <QPointer>
#include <QScopeGuard>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <algorithm>
#include <utility>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Shows a dog's panel whole where the screen is high enough.
constexpr QSize kDesignedSize(1180, 830);
/// Title and edges that a desktop draws around a window.
constexpr QSize kFrame(16, 40);
constexpr int kDesignedTreeWidth = 340;

const QString kSplitterKey = u"Splitters\\fm_main"_s;
const QString kLeft = u"Left"_s;

/// Puts the divider at `left`; what is right of it follows the window's width.
void PlaceSplitter(QSplitter& splitter, int left) {
    splitter.setSizes({left, std::max(1, splitter.window()->width() - left)});
}

} // namespace

fm_main::fm_main()
    : cmdBar(new MainCommandBar(*this, this)), sbMain(new StatusPanels(u"sbMain"_s, this)) {
    setObjectName(u"fm_main"_s);
    setWindowTitle(u"Lorvo"_s);
    resize(kDesignedSize.boundedTo(screen()->availableSize() - kFrame));
    addToolBar(cmdBar->MakeBar(u"STANDARD"_s, this));
    setStatusBar(sbMain);
    diskNotice_ = new DiskNotice(*sbMain);
    MakeSplitter();
    MakeAboutPanel();
    treeCommands_ = new TreeCommands(*tvwMain, *this, search_, this);
    Connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [] { OpenHelpOn(u"okno"_s); });
    new AccessKeys(*this);
    SetTheMainWindow(this);
    SetActivatedBelow(this);
}

fm_main::~fm_main() {
    SetActivatedBelow(nullptr);
    SetTheMainWindow(nullptr);
    // They look at the nodes to their end, and members go before children.
    delete treeCommands_;
    delete vbuSplit;
}

void fm_main::MakeSplitter() {
    vbuSplit = Named(new QSplitter(this), u"vbuSplit"_s);
    tvwMain = new MainTree(nodes_, look_, vbuSplit);
    picDetails = new NodePanels(*tvwMain, *sbMain, history_, look_, vbuSplit);
    vbuSplit->addWidget(tvwMain);
    vbuSplit->addWidget(picDetails);
    vbuSplit->setChildrenCollapsible(false);
    vbuSplit->setStretchFactor(0, 0);
    vbuSplit->setStretchFactor(1, 1);
    // On a small screen tree and panels share what there is.
    PlaceSplitter(*vbuSplit, kDesignedTreeWidth * width() / kDesignedSize.width());
    setCentralWidget(vbuSplit);
    tvwMain->setFocus();
    Connect(tvwMain, &MainTree::NodeClick, cmdBar, &MainCommandBar::NodeClicked);
}

void fm_main::MakeAboutPanel() {
    picAbout = new AboutPanel(picDetails);
    picDetails->AddPanel(picAbout);
    Connect(picAbout, &AboutPanel::MailAddressShown, sbMain, [this](const QString& address) {
        sbMain->Clear();
        sbMain->SetPanel(1, address);
        sbMain->SetPanelVisible(1, true);
    });
    Connect(picAbout, &AboutPanel::MailAddressHidden, sbMain, &StatusPanels::Clear);
}

// Start and end -----------------------------------------------------------------------------------

void fm_main::Start() {
    Load();
    show();
    Connect(new ReturnWatch(*this), &ReturnWatch::Returned, this, [this] {
        if (!IsModalOpen())
            Activate();
        diskNotice_->Refresh();
    });
    Later(this, [this] {
        Activate();
        diskNotice_->Refresh();
    });
}

void fm_main::Load() {
    look_.showClasses = ShowClassesPreferred();
    SkipFailure(EnsureShow);
    if (!TheDataModule().Conn1.IsOpen())
        SkipFailure(OpenDatabase);
    LoadFormSettings(*this, false);
    RestorePlace(*this);
    RestoreSplitter();
    Module().ClassNames = Tables().ClassNames;
    SkipFailure([this] { LoadData(); });
    picDetails->HidePanels();
    SkipFailure([this] { RestoreSelection(); });
    ShowGridLines(ShowGridPreferred());
    EnsureMainCurrency();
}

void fm_main::RestoreSplitter() {
    const auto left = StoredNumber(kSplitterKey, kLeft);
    if (left && *left >= 1)
        PlaceSplitter(*vbuSplit, *left);
}

void fm_main::RestoreSelection() {
    const QString key = RememberedNode();
    look_.rememberTree = !key.isEmpty();
    const TreeNode* node = nodes_.Find(key);
    if (node && node->Kind() != NodeKind::Class)
        tvwMain->SelectNode(node);
}

void fm_main::ShowGridLines(bool shown) {
    for (const auto* name : {"lvwSouteze", "lvwOceneni", "lvwDogs"})
        if (auto* list = picDetails->findChild<ReportList*>(QString::fromLatin1(name)))
            list->SetGridLines(shown);
}

void fm_main::Activate() {
    // A panel that goes takes the keyboard away from what the clerk was at on it.
    const auto end =
        qScopeGuard([this, focus = QPointer<QWidget>(focusWidget())] { GiveFocusBack(focus); });
    look_.showClasses = ShowClassesPreferred();
    picDetails->RestoreCurrent();
    ModuleValues& shared = Module();
    if (std::exchange(shared.PaymentsOwner, 0) != 0)
        return ReturnFromStatement();
    const QString key = SelectedNode();
    if (shared.BreedsDirty || shared.TreeDirty) {
        LoadData();
        shared.BreedsDirty = shared.TreeDirty = false;
    }
    ThePlatform().ui->ProcessEvents();
    if (NodeExists(key))
        ShowAgain(key);
    else
        SkipFailure([this] { picDetails->Refresh(); });
}

void fm_main::GiveFocusBack(QWidget* before) {
    if (!before || before == focusWidget())
        return;
    QWidget* now = before->isVisible() && before->isEnabled() ? before : tvwMain;
    now->setFocus();
}

// Another panel than the owner's may show the payments too.
void fm_main::ReturnFromStatement() {
    if (picDetails->IsOwnerOnShow())
        picDetails->RefillOwnerDogs();
    else
        SkipFailure([this] { picDetails->Refresh(); });
}

void fm_main::ShowAgain(const QString& key) {
    UserInterface& ui = *ThePlatform().ui;
    MakeNodeVisible(key);
    picDetails->HidePanels();
    ui.ProcessEvents();
    SkipFailure([&] { ShowNodeInfo(key); });
    ui.ProcessEvents();
}

void fm_main::closeEvent(QCloseEvent* event) {
    event->accept();
    Guarded([this] { Unload(); });
}

void fm_main::Unload() {
    SaveFormSettings(*this);
    WriteRegValue(kSplitterKey, kLeft, QString::number(vbuSplit->sizes().constFirst()));
    if (look_.rememberTree)
        RememberTree(SelectedNode(), tvwMain->ExpandedKeys());
    else
        ForgetTree();
}

} // namespace lorvo
