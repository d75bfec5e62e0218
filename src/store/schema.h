#pragma once
// What the file says about its tables.

#include <string>
#include <string_view>
#include <vector>

namespace SQLite {
class Database;
}

namespace lorvo {

/// Unknown is the type of a Null and of a question mark.
enum class FieldType { Integer, Boolean, Currency, DateTime, Text, Unknown };

struct TableField {
    std::string name;
    FieldType type;
};

struct Table {
    std::string name;
    std::vector<TableField> fields;

    /// Nullptr when there is no such field.
    const TableField* FindField(std::string_view fieldName) const;
};

class Schema {
  public:
    void Add(Table table) { tables_.push_back(std::move(table)); }
    /// Nullptr when there is no such table.
    const Table* FindTable(std::string_view name) const;

  private:
    std::vector<Table> tables_;
};

/// Whether two names are the same in any letter case, accented letters included.
bool SameName(std::string_view first, std::string_view second);

/// Reads all tables of the file. Raises SQLite::Exception.
Schema ReadSchema(SQLite::Database& database);

} // namespace lorvo
