#pragma once
// Going from match to match in the main tree, by the search window or by F3.

namespace lorvo {

class MainWindowServices;

/// Selects the next breed or dog that fits `FindText`, from `FindStart` on, and sets `FindStart`
/// behind it. False, and nothing changed, when nothing fits; a `FindText` that is no pattern is
/// told in a message box besides.
[[nodiscard]] bool SelectNextMatch(MainWindowServices& mainWindow);

} // namespace lorvo
