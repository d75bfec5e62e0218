#pragma once
// What makes a database file from the texts in data/.

#include <string>

namespace lorvo {

/// Writes a new file at `path` with the tables of `schemaSql` and nothing in them. The same texts
/// give the same bytes. Raises SQLite::Exception; a file that is there already is refused.
void BuildEmptyDatabase(const std::string& path, const std::string& schemaSql);

/// The same with what a fresh installation holds: the breeds of `breedsCsv` (number of the FCI
/// standard, group, Czech name, original name) and the row of show-wide values with the date not
/// set. Raises std::runtime_error on a list that isn't one.
void BuildDeliveredDatabase(const std::string& path, const std::string& schemaSql,
                            const std::string& breedsCsv);

} // namespace lorvo
