#include "forms/command_collection.h"

#include "app/commands.h"
#include "forms/command_tool_bar.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <array>

namespace lorvo {

namespace {

QString GroupOf(QStringView key) {
    return key.left(key.indexOf(u':')).toString();
}

/// The pictures of one list by position; the bars of the main window have a large and a small list,
/// the bars beside lists share one.
using Pictures = std::array<const char16_t*, 10>;
constexpr Pictures kMainPictures = {u"add", u"tables", u"export", u"settings", u"blank", u"help"};
constexpr Pictures kMenuPictures = {u"ring",      u"dog",     u"breed",   u"show",   u"competition",
                                    u"exhibitor", u"payment", u"parents", u"colour", u"award"};
constexpr Pictures kListPictures = {u"add", u"edit", u"delete", u"hide", u"help"};
constexpr Pictures kDogListPictures = {u"filter"};

const Pictures& PicturesOf(const QString& key) {
    const QString group = GroupOf(key);
    if (group == key)
        return kMainPictures;
    if (group == u"ADD" || group == u"TABLES")
        return kMenuPictures;
    return group == u"DOGLIST" ? kDogListPictures : kListPictures;
}

QIcon CommandIcon(const Command& command) {
    if (command.icon < 0)
        return {};
    const Pictures& pictures = PicturesOf(command.key.toString());
    return ProgramIcon(QString::fromUtf16(pictures.at(static_cast<std::size_t>(command.icon))));
}

} // namespace

CommandCollection::CommandCollection(const QString& name, const QStringList& groups,
                                     QObject* parent)
    : QObject(parent) {
    setObjectName(name);
    for (const Command& command : AllCommands())
        if (groups.contains(GroupOf(command.key)))
            actions_.insert(command.key.toString(), MakeAction(command));
}

QAction* CommandCollection::MakeAction(const Command& command) {
    auto* action = new QAction(CommandIcon(command), command.caption.toString(), this);
    action->setObjectName(command.key.toString());
    action->setSeparator(command.style == CommandStyle::Separator);
    action->setCheckable(command.style == CommandStyle::CheckBox);
    if (!command.toolTip.isEmpty())
        action->setToolTip(command.toolTip.toString());
    Connect(action, &QAction::triggered, this,
            [this, key = action->objectName()] { Q_EMIT CommandClick(key); });
    return action;
}

QAction* CommandCollection::Action(const QString& key) const {
    if (QAction* action = actions_.value(key))
        return action;
    throw Error("Příkaz " + key.toStdString() + " neexistuje.");
}

QToolBar* CommandCollection::MakeBar(const QString& bar, QWidget* parent) {
    const CommandBar* description = FindCommandBar(bar);
    if (!description)
        throw Error("Panel příkazů " + bar.toStdString() + " neexistuje.");
    auto* toolBar = new CommandToolBar(bar, parent);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar->setMovable(false);
    toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const QStringView key : description->commands) {
        toolBar->addAction(Action(key.toString()));
        const CommandBar* dropDown = FindCommandBar(key);
        if (dropDown)
            DropDown(*dropDown, key.toString(), toolBar);
    }
    return toolBar;
}

void CommandCollection::DropDown(const CommandBar& bar, const QString& key,
                                 CommandToolBar* toolBar) {
    QAction* button = Action(key);
    auto* menu = new QMenu(toolBar);
    for (const QStringView entry : bar.commands)
        menu->addAction(Action(entry.toString()));
    button->setMenu(menu);
    Connect(menu, &QMenu::aboutToHide, toolBar, &CommandToolBar::LeaveBar);
    static_cast<QToolButton*>(toolBar->widgetForAction(button))
        ->setPopupMode(QToolButton::InstantPopup);
}

} // namespace lorvo
