#pragma once
// Context menus that a key asks for.

#include <functional>

class QAbstractItemView;
class QKeyEvent;
class QModelIndex;

namespace lorvo {

/// Shift+F10, which not every desktop turns into the key of the context menu.
bool AsksForMenu(const QKeyEvent& key);

/// Runs `open` with the selected current row of the view (an invalid one when there is none),
/// having brought it in sight; the menu that it tracks opens below that row, or at the top of the
/// view, and not at the pointer.
void OpenMenuByKey(QAbstractItemView& view, const std::function<void(const QModelIndex&)>& open);

} // namespace lorvo
