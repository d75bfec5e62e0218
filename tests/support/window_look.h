#pragma once
// A window looked at from all sides on the screen of this process.

#include "support/desktop_look.h"

class QWidget;

namespace lorvo::test {

/// Fails the test for what isn't in order in the window as it stands: place, captions, keys, cut
/// texts, contrast, cells that speak by their look alone. Takes a picture of it, which is named by
/// the window, the part and the desktop.
void LookAt(QWidget& window, const QString& part, DesktopLook look);

/// Looks at the window as it opens and at each of its further pages, and whether Ctrl+Tab, or the
/// button that goes forward, leads to them.
void LookAtEachPage(QWidget& window, DesktopLook look);

} // namespace lorvo::test
