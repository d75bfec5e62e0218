#pragma once
// The two layout routines that every window calls.

class QWidget;

namespace lorvo {

/// Restores column widths and positions of the window's lists, grid lines, fonts, position, state
/// and size from the settings tree; whatever is missing or no number keeps what the window has.
void LoadFormSettings(QWidget& window, bool fixedBorder);
/// Stores what LoadFormSettings reads. Position and size only from a window in its normal state.
void SaveFormSettings(const QWidget& window);

} // namespace lorvo
