#pragma once
// Being told by the system to end.

namespace lorvo {

/// From now on the system's request to end (a logout, a shutdown, a plain kill) closes the program
/// as its main window's frame would: layouts are stored and the database is closed. On Windows the
/// toolkit does so by itself. The signal of a limit of the file size is ignored: the write fails.
void CloseOnTermination();

} // namespace lorvo
