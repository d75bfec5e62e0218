#include "desktop/desktop_services.h"

#include "platform/failure_guard.h"
#include "platform/menu_place.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMenu>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Menus take an ampersand as the mark of an access key.
QString PlainText(QString text) {
    return text.replace(u'&', u"&&"_s);
}

void Fill(QMenu& menu, const std::vector<MenuEntry>& entries) {
    for (const MenuEntry& entry : entries) {
        if (entry.separator) {
            menu.addSeparator();
            continue;
        }
        QAction* action = nullptr;
        if (entry.submenu.empty()) {
            action = menu.addAction(PlainText(entry.text));
        } else {
            QMenu* submenu = menu.addMenu(PlainText(entry.text));
            Fill(*submenu, entry.submenu);
            action = submenu->menuAction();
        }
        action->setData(entry.number);
        action->setEnabled(entry.enabled);
        action->setCheckable(entry.checked);
        action->setChecked(entry.checked);
    }
}

} // namespace

int DesktopPopupMenus::TrackPopup(const std::vector<MenuEntry>& entries) {
    QMenu menu(QApplication::activeWindow());
    menu.setObjectName(u"popupMenu"_s);
    Fill(menu, entries);
    const QAction* chosen = menu.exec(MenuPlace::Current().value_or(QCursor::pos()));
    RethrowFailure();
    return chosen ? chosen->data().toInt() : 0;
}

} // namespace lorvo
