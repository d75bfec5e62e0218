#pragma once
// The real main window over a real database, worked by mouse and keys, with the model beside it.

#include "app/module_values.h"
#include "forms/report_list.h"
#include "mainwindow/fm_main.h"
#include "mainwindow/main_tree.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"
#include "walk/desk_model.h"

#include <memory>
#include <random>
#include <vector>

namespace lorvo::test {

class Desk {
  public:
    /// Every other seed has the tree with classes.
    explicit Desk(unsigned seed);
    ~Desk();

    // Chance.
    int Random(int below) { return static_cast<int>(chance_() % static_cast<unsigned>(below)); }
    bool OneIn(int count) { return Random(count) == 0; }
    /// One of them; empty for none.
    QString OneOf(const QStringList& keys) {
        return keys.isEmpty() ? QString() : keys[Random(static_cast<int>(keys.size()))];
    }

    // The clerk's hands.
    template<typename T> T& Get(const QString& name) {
        return Control<T>(*window, name.toUtf8().constData());
    }
    void Click(const QString& name);
    void ClickNode(const QString& key, Qt::MouseButton button = Qt::LeftButton);
    void ClickBesideTree(Qt::MouseButton button);
    /// Right-clicks a node, or beside the tree for an empty key, and takes an entry.
    void Choose(const QString& key, int entry);
    void PressInTree(Qt::Key key);
    void Drop(const QString& key, const QString& target);
    /// Clicks the tick box of a row.
    void Tick(const QString& list, const QString& key);
    void Trigger(const QString& command);

    /// Key of the node that the tree has selected, empty for none.
    QString Selected() const { return window->SelectedNode(); }

    /// Fails the test wherever database, tree, panel or history aren't as the model knows them.
    void Compare();

    RecordingPlatform platform;
    TempDatabase database;
    DeskModel model;
    std::unique_ptr<fm_main> window;

  private:
    void StoreModel();
    void CompareRows(const char* table, const char* fields, QStringList expected);
    void CompareData();
    PanelTexts ShownPanel();
    QString ShownText(const QString& name);
    QPoint PlaceOf(const QString& key);
    MainTree& Tree() { return Get<MainTree>(QStringLiteral("tvwMain")); }

    std::mt19937 chance_;
};

/// A step that a clerk can take. It does nothing, and says nothing, where it can't be taken.
using DeskStep = QString (*)(Desk& desk);

// Steps of each kind. What they return tells what was done, for whoever looks for a fault.
const std::vector<DeskStep>& StepsInTree();
const std::vector<DeskStep>& StepsOnPanels();
const std::vector<DeskStep>& StepsInEditors();
const std::vector<DeskStep>& StepsInLists();
const std::vector<DeskStep>& StepsInWindows();

/// The panel of a dog is on show.
bool IsDogOnShow(const Desk& desk);
/// What is done on the panel of a dog selects its node if the tree has none selected.
void TakeDogOnShow(Desk& desk);

/// The end of a show: all dogs, rings and entries are cleared away.
void ClearShow(Desk& desk);

} // namespace lorvo::test
