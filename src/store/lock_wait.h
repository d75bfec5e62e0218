#pragma once
// Waiting for another program to let go of the file: a backup program, a viewer.

struct sqlite3;

namespace lorvo {

/// From now on a statement that finds the file locked waits up to half a minute before it fails,
/// under the wait cursor as soon as the clerk could notice.
void WaitForLocks(sqlite3* handle);

/// Takes the wait cursor away; to be called behind each statement.
void EndLockWait();

} // namespace lorvo
