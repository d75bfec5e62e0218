#pragma once
// What the breed register shows: its rows, its status text and its menu.

#include "platform/popup_menus.h"
#include "setup/breed_tree_model.h"

namespace lorvo {

inline constexpr int kFciGroups = 10;

// Numbers of the register's menu; FCI group and ring are added to theirs.
inline constexpr int kMenuDelete = 602;
inline constexpr int kMenuJump = 603;
inline constexpr int kMenuRing = 10000;
inline constexpr int kMenuFci = 20000;

/// All breeds with their subgroups, both by Nazev, or those in use alone.
std::vector<std::unique_ptr<BreedNode>> ReadRegister(bool usedOnly);

/// "Celkem 3 plemena, z toho 2 použito."
QString RegisterStatus(int breeds, int used);

std::vector<MenuEntry> RegisterMenu(const BreedNode& node);

/// Name of a ring; empty when there is none of that ID.
QString RingName(int kruhID);

} // namespace lorvo
