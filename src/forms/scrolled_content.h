#pragma once
// A window that is larger than the screen.

class QAbstractItemView;
class QModelIndex;
class QWidget;

namespace lorvo {

/// Puts the rows of the window, which stand in one column, into an area that scrolls; the last row,
/// its buttons, stays below. Names, order of the Tab key and hidden controls stay as they are. Does
/// nothing for a window of another build. To be called before the window is shown.
void ScrollContent(QWidget& window);

/// Scrolls the areas around a list so that the row, as far as the list itself shows it, is in
/// sight. For the list's scrollTo.
void ScrollAround(const QAbstractItemView& list, const QModelIndex& row);

} // namespace lorvo
