#pragma once
// A small window with the main tree and its commands in it, in place of the main window.

#include "app/main_window_services.h"
#include "app/module_values.h"
#include "app/view_preferences.h"
#include "forms/form.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/tree_commands.h"
#include "mainwindow/tree_search.h"
#include "mainwindow/window_opener.h"
#include "support/print_qt.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QCoreApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo::test {

class TreeHost : public QWidget, public MainWindowServices {
  public:
    TreeHost();
    ~TreeHost() override;

    QStringList shown; ///< keys of the nodes whose panels were asked for
    QString itemTitle;
    ViewPreferences look;
    TreeSearch search;
    TreeNodes nodes;
    MainTree* tree;
    TreeCommands* commands;

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
    ViewPreferences& Look() override { return look; }
    TreeNodes& Nodes() override { return nodes; }
};

/// A show with two rings: A (ID 1) with the breed 10 and its dogs 1 and 2 of the owner 5, B (ID 2)
/// without breeds; breed 20 in no ring, with the dog 3 of owner 5; breed 30 is the user's own, in
/// no ring and without dogs.
class TreeTest : public ::testing::Test {
  protected:
    TreeTest();
    ~TreeTest() override;

    /// Runs statements, then rebuilds the tree.
    void Load(const std::string& sql = {});
    TreeNode& Node(const QString& key) const { return host.nodes.Get(key); }
    MainTree& Tree() const { return *host.tree; }

    /// Where the clerk points to mean the node, which is scrolled into sight first.
    QPoint PlaceOf(const QString& key) const;
    QPoint EmptyPlace() const;
    void Click(const QString& key, Qt::MouseButton button = Qt::LeftButton);
    void ClickEmpty(Qt::MouseButton button);
    void DoubleClick(const QString& key);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Right-clicks the node (empty: where there is none) and takes the entry of that number.
    void Choose(const QString& key, int number);
    /// Drags a node by the events that the window system sends.
    void Drop(const QString& key, const QString& target);
    /// The same with whatever data; returns whether the tree took it while it hovered.
    bool DropData(QMimeData& data, const QString& target);
    /// The box of the edit in place, null when none is open.
    QLineEdit* Editor() const;

    /// Stands in for the window of that name, which notes that it was opened and closes itself.
    void StandInFor(const QString& window);
    QStringList opened; ///< names of the stand-ins opened so far
    DogTask dogTask;    ///< what the dog editor was opened for last

    /// Column 0 of the first row as text.
    QString Scalar(const std::string& statement) const;

    RecordingPlatform platform;
    TempDatabase database;
    TreeHost host;

  private:
    std::map<QString, WindowFactory> replaced_;
};

} // namespace lorvo::test
