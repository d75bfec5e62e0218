#include "forms/command_collection.h"

#include "app/commands.h"
#include "forms/controls.h"
#include "platform/values/errors.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace lorvo {

namespace {

QString GroupOf(QStringView key) {
    return key.left(key.indexOf(u':')).toString();
}

/// The pictures by position, one list for the buttons of the main bar, one for its drop-down bars,
/// one for the bars beside lists.
QIcon CommandIcon(const Command& command) {
    static const QStringList kMain = {QStringLiteral("add"),
                                      QStringLiteral("tables"),
                                      QStringLiteral("export"),
                                      QStringLiteral("settings"),
                                      QString(),
                                      QStringLiteral("help")};
    static const QStringList kTables = {QStringLiteral("ring"),        QStringLiteral("dog"),
                                        QStringLiteral("breed"),       QStringLiteral("show"),
                                        QStringLiteral("competition"), QStringLiteral("owner"),
                                        QStringLiteral("payment"),     QStringLiteral("parents"),
                                        QStringLiteral("colour"),      QStringLiteral("award")};
    static const QStringList kListBars = {QStringLiteral("add"), QStringLiteral("edit"),
                                          QStringLiteral("delete"), QStringLiteral("filter"),
                                          QStringLiteral("help")};
    static const QStringList kDogList = {QStringLiteral("filter")};

    if (command.icon < 0)
        return {};
    const QString group = GroupOf(command.key);
    const bool dropDown = group == u"ADD" || group == u"TABLES";
    const QStringList& names = !command.key.contains(u':') ? kMain
                               : dropDown                  ? kTables
                               : group == u"DOGLIST"       ? kDogList
                                                           : kListBars;
    return ProgramIcon(names[command.icon]);
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
    connect(action, &QAction::triggered, this,
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
    auto* toolBar = Named(new QToolBar(parent), bar);
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

void CommandCollection::DropDown(const CommandBar& bar, const QString& key, QToolBar* toolBar) {
    QAction* button = Action(key);
    auto* menu = new QMenu(toolBar);
    for (const QStringView entry : bar.commands)
        menu->addAction(Action(entry.toString()));
    button->setMenu(menu);
    static_cast<QToolButton*>(toolBar->widgetForAction(button))
        ->setPopupMode(QToolButton::InstantPopup);
}

} // namespace lorvo
