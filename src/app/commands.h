#pragma once
// The commands of all command bars as data: what a command is called, how it looks, on which bar
// it stands. Who carries it out is the window's matter.

#include <QStringView>
#include <span>

namespace lorvo {

enum class CommandStyle { Plain, Separator, CheckBox };

struct Command {
    QStringView key;     ///< group and item in capitals, joined by a colon: "TABLES:PSI"
    QStringView caption; ///< an ampersand marks the access letter
    int icon;            ///< position among the pictures of the command's bar, -1 for none
    CommandStyle style = CommandStyle::Plain;
    QStringView toolTip = {};
};

struct CommandBar {
    QStringView name;
    std::span<const QStringView> commands; ///< keys in the order of the buttons
};

/// Every command, in the order of creation.
std::span<const Command> AllCommands();
/// Nullptr when there is no bar of that name.
const CommandBar* FindCommandBar(QStringView name);

} // namespace lorvo
