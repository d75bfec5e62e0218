#pragma once
// The commands of a window as actions, and the bars that place them.

#include <QMap>
#include <QObject>

class QAction;
class QToolBar;
class QWidget;

namespace lorvo {

/// The commands of some groups, each an action whose objectName is its key. Commands that stand on
/// no bar are among them, so that their state can be kept and their handlers reached.
class CommandCollection : public QObject {
    Q_OBJECT
  public:
    /// `groups` are the words before the colon; a group's own command ("ADD") is taken too.
    CommandCollection(const QString& name, const QStringList& groups, QObject* parent);

    /// The action of a command of this collection; a key that isn't here raises Error.
    QAction* Action(const QString& key) const;

    /// The tool bar of that name, every button with its caption. A command that has a bar of its
    /// own name drops it down instead of being clicked.
    QToolBar* MakeBar(const QString& bar, QWidget* parent);

  Q_SIGNALS:
    /// A button or menu entry was chosen; the check mark of a check box command has changed.
    void CommandClick(const QString& key);

  private:
    QAction* MakeAction(const struct Command& command);
    void DropDown(const struct CommandBar& bar, const QString& key, class CommandToolBar* toolBar);

    QMap<QString, QAction*> actions_;
};

} // namespace lorvo
