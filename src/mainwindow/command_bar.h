#pragma once
// The main window's menu and tool bar in one: its commands, the bar STANDARD, and what each command
// does.

#include "forms/command_collection.h"

namespace lorvo {

class fm_DogsList;
struct RegisterResult;

/// What commands do on the main window itself.
class CommandTarget {
  public:
    virtual ~CommandTarget() = default;
    virtual void AddRing() = 0;
    virtual void AddDog() = 0;
    virtual void ShowAbout() = 0;
    virtual void FocusTree() = 0;
    /// Makes the node whose panel stands in front visible in the rebuilt tree, which selects none,
    /// and draws panel and path afresh.
    virtual void RefreshNodeOnShow() = 0;
    virtual void SetHelpPointer(bool on) = 0;
};

class MainCommandBar : public CommandCollection {
    Q_OBJECT
  public:
    MainCommandBar(CommandTarget& target, QObject* parent);

    /// Carries out a command; one without an action of its own does nothing.
    void Run(const QString& key);

    /// A node has been clicked: while the help pointer is on this opens the help and puts the
    /// pointer back.
    void NodeClicked();

  private:
    void OpenWindowOf(const QString& key);
    void ReturnFromBreeds(const RegisterResult& result);
    void ReturnFromDogs(const fm_DogsList& dogs);
    void SwitchContextHelp();

    CommandTarget& target_;
};

} // namespace lorvo
