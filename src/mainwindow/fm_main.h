#pragma once
// The main window: the tree of the show on the left, the panel of the selected node on the right.
// It is the program; closing it ends the program.

#include "app/main_window_services.h"
#include "app/view_preferences.h"
#include "forms/form.h"
#include "mainwindow/command_bar.h"
#include "mainwindow/tree_search.h"
#include "office/tree/node_history.h"
#include "office/tree/tree_nodes.h"

#include <QMainWindow>

class QSplitter;

namespace lorvo {

class AboutPanel;
class DiskNotice;
class MainTree;
class NodePanels;
class StatusPanels;
class TreeCommands;

class fm_main : public QMainWindow,
                public MainWindowServices,
                public Activatable,
                private CommandTarget {
    Q_OBJECT
  public:
    fm_main();
    ~fm_main() override;

    /// Loads and shows the window; the first Activate comes with the next turn of the event loop.
    /// The database is open. Whatever fails on the way leaves its part undone, and no box tells of
    /// it; a failure of the disk is noted in the status bar.
    void Start();

    /// The way back from every other window, and from other programs: rebuilds the tree if somebody
    /// has asked for it, and shows the selected node afresh. Raises what LoadData raises.
    void Activate() override;

    // MainWindowServices
    QString SelectedNode() const override;
    bool NodeExists(const QString& key) const override;
    QString NodeText(const QString& key) const override;
    void SelectNode(const QString& key) override;
    void MakeNodeVisible(const QString& key) override;
    void AddDogNode(const QString& parentKey, int psiID, const QString& text, bool male) override;
    void SetNodeText(const QString& key, const QString& text) override;
    void LoadData() override;
    void ShowNodeInfo(const QString& key) override;
    void SetItemTitle(const QString& text) override;
    QString Caption() const override;
    ViewPreferences& Look() override { return look_; }
    TreeNodes& Nodes() override { return nodes_; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    // Building.
    void MakeSplitter();
    void MakeAboutPanel();

    // Start and end.
    void Load();
    void Unload();
    void RestoreSplitter();
    void RestoreSelection();
    void ShowGridLines(bool shown);
    void ShowAgain(const QString& key);
    void ReturnFromStatement();
    void GiveFocusBack(QWidget* before);

    // CommandTarget
    void AddRing() override;
    void AddDog() override;
    void ShowAbout() override;
    void FocusTree() override;
    void RefreshNodeOnShow() override;
    void SetHelpPointer(bool on) override;

    ViewPreferences look_;
    TreeSearch search_;
    TreeNodes nodes_;
    NodeHistory history_;

    MainCommandBar* cmdBar;
    StatusPanels* sbMain;
    DiskNotice* diskNotice_ = nullptr;
    QSplitter* vbuSplit = nullptr;
    MainTree* tvwMain = nullptr;
    NodePanels* picDetails = nullptr;
    AboutPanel* picAbout = nullptr;
    TreeCommands* treeCommands_ = nullptr;
};

} // namespace lorvo
