#pragma once
// Pop-up menus by number at the pointer.

#include <QString>
#include <vector>

namespace lorvo {

struct MenuEntry {
    int number = 0; ///< what TrackPopup returns; 0 is kept for "nothing chosen"
    QString text;
    bool checked = false;
    bool enabled = true;
    bool separator = false;
    std::vector<MenuEntry> submenu; ///< not empty: an entry that opens a submenu

    static MenuEntry Separator() {
        MenuEntry entry;
        entry.separator = true;
        return entry;
    }
};

class PopupMenus {
  public:
    virtual ~PopupMenus() = default;
    /// Shows the menu at the mouse pointer and returns the chosen entry's number, 0 when the menu
    /// was left. A text is shown as it is: an ampersand in it is an ampersand.
    virtual int TrackPopup(const std::vector<MenuEntry>& entries) = 0;
};

} // namespace lorvo
