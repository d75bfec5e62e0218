#pragma once
// The functions that translated statements call.

struct sqlite3;

namespace lorvo {

/// Gives the connection lcase(x), lower case of every alphabet, and czech_key(x), by which texts
/// are ordered. What is no text passes through both unchanged.
void RegisterSqlFunctions(sqlite3* handle);

} // namespace lorvo
