// Any bytes as a statement: the translator gives a statement that SQLite prepares with the columns
// it promised, or an error.

#include "fuzz/fuzz_target.h"

#include "platform/values/errors.h"
#include "store/dialect_translator.h"
#include "store/sql_functions.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

SQLite::Database MakeDatabase() {
    SQLite::Database database(":memory:", SQLite::OPEN_READWRITE);
    std::ifstream schema(LORVO_SCHEMA_FILE);
    database.exec(std::string(std::istreambuf_iterator<char>(schema), {}));
    lorvo::RegisterSqlFunctions(database.getHandle());
    return database;
}

void RequireColumns(SQLite::Database& database, const lorvo::Translation& translation) {
    try {
        const SQLite::Statement statement(database, translation.sql);
        const std::size_t promised = translation.columns.size() + (translation.takesEdits ? 1 : 0);
        if (static_cast<std::size_t>(statement.getColumnCount()) != promised)
            std::abort();
    } catch (const SQLite::Exception&) { // such as an aggregate in a condition
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static SQLite::Database database = MakeDatabase();
    static const lorvo::Schema schema = lorvo::ReadSchema(database);
    try {
        const std::string_view text(reinterpret_cast<const char*>(data), size);
        RequireColumns(database, lorvo::Translate(lorvo::Tokenize(text), schema));
    } catch (const lorvo::StoreError&) { // refused
    }
    return 0;
}
