#pragma once
// The pop-up menus of the main tree: what they offer, greyed and marked from the database.

#include "platform/popup_menus.h"

#include <vector>

namespace lorvo {

struct TreeNode;

/// Numbers of the entries. Each menu counts for itself.
namespace root_menu {
enum : int {
    kAddRing = 601,
    kHideEmpty = 602,
    kShowAll = 603,
    kExpandAll = 604,
    kCollapseAll = 605,
    kFind = 606,
    kClearColours = 607,
    kToggleDetail = 609, ///< no entry bears it
};
}
namespace ring_menu {
enum : int { kRename = 601, kRemove = 602 };
}
namespace breed_menu {
enum : int { kFciNone = 500, kFciLast = 510, kFci = 600, kAddDog = 603 };
}
namespace dog_menu {
enum : int {
    kRemove = 601,
    kTakePayment = 602,
    kPayments = 603,
    kHighlightOwner = 604,
    kClearHighlight = 605,
    kFirstClosing = 606,
    kSecondClosing = 607,
    kFirstDog = 608,
};
}

std::vector<MenuEntry> RootMenu();
/// Greyed for the unassigned root.
std::vector<MenuEntry> RingMenu(const TreeNode& ring);
/// The group can be chosen for the user's own breeds alone.
std::vector<MenuEntry> BreedMenu(const TreeNode& breed);
/// The marks are those of the dog last shown, `CurrentDogID`, whatever node the menu is asked for.
std::vector<MenuEntry> DogMenu();

} // namespace lorvo
