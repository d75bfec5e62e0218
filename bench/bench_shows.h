#pragma once
// The shows that the benchmarks run on, made once per run of a program.

#include <QString>

namespace lorvo::bench {

inline constexpr const char* kSizes[] = {"club", "national", "world"};

/// The platform of a benchmark: the Czech locale, settings and program folder of its own, an open
/// service that opens nothing.
void InstallPlatform(const QString& programFolder);

/// A folder with the data.mdb of a show of that size, some of its dogs numbered or none. Made at
/// the first call and gone with the program.
QString ShowFolder(const char* size);

/// Connects the store to the show, unless it is connected to it.
void UseShow(const char* size);

} // namespace lorvo::bench
