#pragma once
// A stand-in for the main window: a tree of nodes without a picture, and what was asked of it.

#include "app/main_window_services.h"
#include "app/view_preferences.h"

#include <QStringList>
#include <vector>

namespace lorvo::test {

/// Installed as the main window for the lifetime of the object.
class RecordingMainWindow : public MainWindowServices {
  public:
    RecordingMainWindow();
    ~RecordingMainWindow() override;

    void AddNode(const QString& key, const QString& text, const QString& parent = {});

    QString SelectedNode() const override { return selected; }
    bool NodeExists(const QString& key) const override;
    QString NodeText(const QString& key) const override;
    void SelectNode(const QString& key) override;
    void MakeNodeVisible(const QString& key) override;
    void AddDogNode(const QString& parentKey, int psiID, const QString& text, bool male) override;
    void SetNodeText(const QString& key, const QString& text) override;
    void LoadData() override;
    void ShowNodeInfo(const QString& key) override;
    void SetItemTitle(const QString& text) override;
    QString Caption() const override { return QStringLiteral("Lorvo"); }
    ViewPreferences& Look() override { return look; }

    ViewPreferences look;
    /// Key of the node above.
    QString ParentOf(const QString& key) const { return Find(key).parent; }

    QString selected;
    QString title;
    /// What was asked that changes something, in order: "AddDogNode R5 P1 Rex male".
    QStringList calls;

  private:
    struct Node {
        QString key;
        QString text;
        QString parent;
    };
    /// Raises Error when there is no such node.
    Node& Find(const QString& key);
    const Node& Find(const QString& key) const;

    std::vector<Node> nodes_;
};

} // namespace lorvo::test
