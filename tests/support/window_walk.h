#pragma once
// What holds for every window, looked at in one walk over its controls.

class QWidget;

namespace lorvo::test {

/// Shows the window (not modally) and fails the test for each input field without a caption, each
/// control without a name or an access key of its own, each step of the Tab key against the reading
/// order, and each label or button whose text is cut.
void WalkWindow(QWidget& window);

} // namespace lorvo::test
