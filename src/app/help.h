#pragma once
// The user help: one compiled file, and the same pages one by one.

#include <QString>

namespace lorvo {

/// Hands the compiled help beside the program to the desktop; its first page instead where the
/// desktop has no viewer for such a file.
void OpenHelp();
/// Opens the page of the window of that name ("fm_Dog"); the first page for a window that has none,
/// and the compiled help where the pages are missing.
void OpenHelpOn(const QString& window);

} // namespace lorvo
