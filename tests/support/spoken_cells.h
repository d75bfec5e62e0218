#pragma once
// What cells say to those who can't see their colours and pictures.

class QWidget;

namespace lorvo::test {

/// Fails the test for each cell in the window whose colour or picture tells it from others of its
/// column while neither its text nor its accessible text says so. The sign of an amount says what
/// its colour does, and "Ano" and "Ne" what their pictures do.
void CheckSpokenCells(const QWidget& window);

} // namespace lorvo::test
