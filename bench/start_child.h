#pragma once
// Starting the program in a process of its own, up to the first painted tree.

#include <QString>

namespace lorvo::bench {

/// Seconds from the start of the process to the painted tree, and the most memory it held, in MB.
struct StartFigures {
    double seconds = 0;
    double megabytes = 0;
};

/// Starts this program again as the program ("program") or as the bare window ("bare") on the
/// database in `folder`.
StartFigures StartOnce(const QString& side, const QString& folder);

/// What the child does; returns its exit code.
int RunChild(int argc, char** argv, const QString& side, const QString& folder);

} // namespace lorvo::bench
