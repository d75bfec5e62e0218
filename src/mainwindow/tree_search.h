#pragma once
// Going from match to match in the main tree, by the search window or by F3.

#include <QString>

namespace lorvo {

class MainWindowServices;

/// What is searched for, and where the next search begins.
struct TreeSearch {
    QString text;
    int start = 1; ///< position in the tree, from 1
};

/// Selects the next breed or dog that fits the text, and sets `start` behind it. False, and nothing
/// changed, when nothing fits; a text that is no pattern is told in a message box besides.
bool SelectNextMatch(TreeSearch& search, MainWindowServices& mainWindow);

} // namespace lorvo
