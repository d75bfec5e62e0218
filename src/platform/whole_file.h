#pragma once
// Files that are there whole or not at all: written under another name, synced to the disk, and
// given their own name last.

#include <QByteArray>
#include <QString>

class QFileDevice;

namespace lorvo {

/// What the file holds. One that can't be read to its end raises PlatformError, which names the
/// file and the cause.
[[nodiscard]] QByteArray ReadWholeFile(const QString& path);

/// Writes the file; one of that name gives way when the new one is whole, and stays as it was when
/// that fails. PlatformError names the file and the cause.
void ReplaceFile(const QString& path, const QByteArray& bytes);

/// Gives a file another name in one step, over a file that has it. Raises as ReplaceFile does.
void RenameOver(const QString& from, const QString& to);

/// Writes a new file beside the older ones: "FOLDER/STEM.ENDING", or "FOLDER/STEM (2).ENDING" and
/// so on where that is taken. The folder is made when it is missing. Returns the path. Raises as
/// ReplaceFile does.
[[nodiscard]] QString WriteNewFile(const QString& folder, const QString& stem,
                                   const QString& ending, const QByteArray& bytes);

/// Waits until what was written to an open file is on the disk; whether it is.
[[nodiscard]] bool SyncToDisk(const QFileDevice& file);

} // namespace lorvo
