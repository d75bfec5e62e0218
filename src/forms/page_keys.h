#pragma once
// From page to page by keys.

class QTabWidget;

namespace lorvo {

/// Ctrl+Tab goes to the next page and Ctrl+Shift+Tab to the one before, from wherever the keyboard
/// is in the window; dates and combo boxes would keep the keys to themselves.
void ChangePagesByKeys(QTabWidget& pages);

} // namespace lorvo
