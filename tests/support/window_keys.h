#pragma once
// What a clerk's keys do in a window, whatever window it is.

class QWidget;

namespace lorvo::test {

/// Goes through the window by the Tab key and types into each field on the way. Fails the test for
/// a field that Tab doesn't come to and for one that is out of sight when the keyboard is there.
void FillByKeys(QWidget& window);

/// Presses the window's default button by its access key; false when it has none or it is greyed.
bool ConfirmByKeys(QWidget& window);

} // namespace lorvo::test
