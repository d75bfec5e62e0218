#pragma once
// Whole database files beside the one that is open: copying, checking and comparing them. Every
// routine but one has connections of its own, so that it may run on a thread of its own; files are
// read as they stand at one moment, whatever is written meanwhile. All raise StoreError that names
// the file.

#include "platform/values/money.h"

#include <QString>
#include <map>
#include <string_view>

namespace SQLite {
class Database;
}

namespace lorvo {

/// What tells at a glance how much a database holds.
struct DatabaseFigures {
    int dogs = 0;
    int owners = 0;
    int payments = 0;
    Currency paid; ///< sum of the payments in the main currency

    /// Rows that somebody typed.
    int Rows() const { return dogs + owners + payments; }
    bool operator==(const DatabaseFigures&) const = default;
};

DatabaseFigures FiguresOfDatabase(const QString& path);

/// Runs the engine's full check; CorruptStoreError when it finds anything.
void RequireWholeDatabase(const QString& path);

/// Copies the database, edits of its log included, to a file that must not exist yet, checks the
/// copy against the original (full check, figures) and syncs it. What it had begun is removed when
/// it fails.
void CopyDatabase(const QString& source, const QString& target);

/// The same for what a connection knows whose file may have gone, on that connection itself.
void CopyOpenDatabase(SQLite::Database& source, const QString& target);

/// Rows of a table by ID, each with its fields as one text.
std::map<int, QString> RowsOfDatabase(const QString& path, std::string_view table);

} // namespace lorvo
