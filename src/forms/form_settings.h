#pragma once
// The layout routines that every window calls.

#include <QSize>
#include <QString>
#include <optional>

class QWidget;

namespace lorvo {

/// Restores column widths and positions of the window's lists, grid lines, fonts, state and size
/// from the settings tree; whatever is missing or no number keeps what the window has. No stored
/// size exceeds the screen or goes below what the window needs.
void LoadFormSettings(QWidget& window, bool fixedBorder);
/// Moves a window that stands where it was designed to stand to its stored place. An axis that has
/// none stays. A place out of sight is brought back.
void RestorePlace(QWidget& window);
/// Stores what the two routines above read. Position and size only from a window in its normal
/// state; of its width, `widening` pixels are no size of the clerk's.
void SaveFormSettings(const QWidget& window, int widening = 0);

/// Moves a window whose title lies on no screen into the nearest place that shows it.
void BringInSight(QWidget& window);
/// The largest size that leaves a window and its frame on the free area of its screen.
QSize LargestSize(const QWidget& window);

/// A number from the settings, bounded to what fits every use; nullopt for a missing value or one
/// that is none by the system's rules.
[[nodiscard]] std::optional<int> StoredNumber(const QString& key, const QString& name);

} // namespace lorvo
