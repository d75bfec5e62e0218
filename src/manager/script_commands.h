#pragma once
// What the data's own program does without a window, for scripts.

#include <QStringList>

class QTextStream;

namespace lorvo {

/// Runs the command that the arguments (without the program's name) tell and writes what came of
/// it. Returns the exit code: 0 when it went through, 1 when it failed or found something wrong, 2
/// when the arguments are not understood, which are then explained.
int RunScriptCommand(const QStringList& arguments, QTextStream& out);

/// Whether the arguments are a command at all; without one the window opens.
bool IsScriptCommand(const QStringList& arguments);

} // namespace lorvo
