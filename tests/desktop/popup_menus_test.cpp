#include "desktop/desktop_services.h"
#include "platform/menu_place.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

MenuEntry Entry(int number, const char* text) {
    MenuEntry entry;
    entry.number = number;
    entry.text = QString::fromUtf8(text);
    return entry;
}

/// Shows a menu and runs `inside` with it; what is still open then is left by Esc.
int Track(const std::vector<MenuEntry>& entries, const std::function<void(QMenu&)>& inside) {
    QTimer::singleShot(0, qApp, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        inside(*menu);
        if (menu->isVisible())
            QTest::keyClick(menu, Qt::Key_Escape);
    });
    return DesktopPopupMenus().TrackPopup(entries);
}

TEST(PopupMenusTest, ReturnsTheNumberOfTheChosenEntry) {
    EXPECT_EQ(Track({Entry(601, "Přidat kruh"), Entry(602, "Skrýt prázdné")},
                    [](QMenu& menu) {
                        menu.setActiveAction(menu.actions()[1]);
                        QTest::keyClick(&menu, Qt::Key_Return);
                    }),
              602);
}

TEST(PopupMenusTest, LeavingTheMenuReturnsZero) {
    EXPECT_EQ(Track({Entry(601, "Přidat kruh")}, [](QMenu&) {}), 0);
}

TEST(PopupMenusTest, AMenuThatAKeyAskedForOpensWhereTheKeyboardStands) {
    const MenuPlace place({123, 45});
    Track({Entry(601, "Přidat kruh")}, [](QMenu& menu) { EXPECT_EQ(menu.pos(), QPoint(123, 45)); });
    EXPECT_EQ(MenuPlace::Current(), QPoint(123, 45));
}

TEST(PopupMenusTest, ShowsMarksGreyingSeparatorsAndPlainTexts) {
    MenuEntry marked = Entry(606, "První & druhá");
    marked.checked = true;
    MenuEntry greyed = Entry(607, "Druhá uzávěrka");
    greyed.enabled = false;
    Track({marked, MenuEntry::Separator(), greyed}, [](QMenu& menu) {
        const QList<QAction*> actions = menu.actions();
        ASSERT_EQ(actions.size(), 3);
        EXPECT_EQ(actions[0]->text(), u"První && druhá"_s);
        EXPECT_EQ(actions[0]->data().toInt(), 606);
        EXPECT_TRUE(actions[0]->isChecked());
        EXPECT_TRUE(actions[1]->isSeparator());
        EXPECT_FALSE(actions[2]->isEnabled());
        EXPECT_FALSE(actions[2]->isCheckable());
    });
}

TEST(PopupMenusTest, AnEntryOfASubmenuIsChosenThroughIt) {
    MenuEntry group = Entry(600, "FCI");
    group.submenu = {Entry(500, "-nezařazeno-"), Entry(501, "FCI 1")};
    EXPECT_EQ(Track({group, Entry(603, "Přidat psa")},
                    [](QMenu& menu) {
                        QMenu* submenu = menu.actions()[0]->menu();
                        ASSERT_TRUE(submenu);
                        EXPECT_EQ(menu.actions()[0]->data().toInt(), 600);
                        menu.setActiveAction(menu.actions()[0]);
                        QTest::keyClick(&menu, Qt::Key_Right);
                        submenu->setActiveAction(submenu->actions()[1]);
                        QTest::keyClick(submenu, Qt::Key_Return);
                    }),
              501);
}

} // namespace
} // namespace lorvo
