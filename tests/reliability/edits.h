#pragma once
// The kinds of edits that the program makes, by the routines that its windows call, each so that
// the files tell which of a row of such edits they hold.

#include <QString>
#include <span>

namespace lorvo::test {

struct EditKind {
    const char* name;
    const char* rows; ///< statements that an empty database gets before
    /// Makes edit `number`, from 1 to kMostEdits, in the program folder `folder`; it is on disk on
    /// return. The program's connection is open.
    void (*make)(int number, const QString& folder);
    /// The last edit that the files hold whole, 0 for none, kHalf when they hold one in half.
    int (*found)(const QString& folder);
};

inline constexpr int kMostEdits = 100;
inline constexpr int kHalf = -1;

std::span<const EditKind> EditKinds();

/// A fresh program folder's database with the rows of the kind.
void PrepareFolder(const EditKind& kind, const QString& folder);

/// Opens the folder's database as the next start does and asks `kind` what is there; kHalf also
/// when the file isn't whole. Raises what the start raises.
int FoundAtNextStart(const EditKind& kind, const QString& folder);

} // namespace lorvo::test
