#pragma once
// What the data's own program does without a window, for scripts.

#include <QStringList>

class QTextStream;

namespace lorvo {

struct Platform;

/// Runs the command that the arguments (without the program's name) tell on the show of the
/// platform's folder and writes what came of it. Returns the exit code: 0 when it went through, 1
/// when it failed or found something wrong, 2 when the arguments are not understood, which are then
/// explained.
int RunScriptCommand(Platform& platform, const QStringList& arguments, QTextStream& out);

} // namespace lorvo
