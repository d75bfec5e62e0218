#include "store/schema.h"

#include <QString>
#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <array>
#include <utility>

namespace lorvo {

namespace {

template<typename Named>
const Named* FindNamed(const std::vector<Named>& all, std::string_view name) {
    const auto found = std::find_if(all.begin(), all.end(), [name](const Named& candidate) {
        return SameName(candidate.name, name);
    });
    return found == all.end() ? nullptr : &*found;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 128; });
}

char AsciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameAsciiName(std::string_view first, std::string_view second) {
    return std::equal(first.begin(), first.end(), second.begin(), second.end(),
                      [](char a, char b) { return AsciiLower(a) == AsciiLower(b); });
}

QString FromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

FieldType TypeOfDeclaration(std::string_view declared) {
    struct Declaration {
        std::string_view name;
        FieldType type;
    };
    static constexpr std::array kDeclarations = {
        Declaration{"INTEGER", FieldType::Integer}, Declaration{"BOOLEAN", FieldType::Boolean},
        Declaration{"CURRENCY", FieldType::Currency}, Declaration{"DATETIME", FieldType::DateTime}};
    for (const Declaration& declaration : kDeclarations)
        if (SameAsciiName(declaration.name, declared))
            return declaration.type;
    return FieldType::Text;
}

} // namespace

bool SameName(std::string_view first, std::string_view second) {
    if (SameAsciiName(first, second))
        return true;
    return !IsAscii(first) && !IsAscii(second) &&
           FromUtf8(first).compare(FromUtf8(second), Qt::CaseInsensitive) == 0;
}

const TableField* Table::FindField(std::string_view fieldName) const {
    return FindNamed(fields, fieldName);
}

const Table* Schema::FindTable(std::string_view name) const {
    return FindNamed(tables_, name);
}

Schema ReadSchema(SQLite::Database& database) {
    Schema schema;
    Table table;
    SQLite::Statement fields(database,
                             "SELECT t.name, f.name, f.type FROM sqlite_schema AS t, "
                             "pragma_table_info(t.name) AS f WHERE t.type = 'table' AND "
                             "t.name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY t.rowid, f.cid");
    while (fields.executeStep()) {
        const std::string name = fields.getColumn(0).getString();
        if (name != table.name && !table.name.empty())
            schema.Add(std::exchange(table, {}));
        table.name = name;
        table.fields.push_back(
            {fields.getColumn(1).getString(), TypeOfDeclaration(fields.getColumn(2).getString())});
    }
    if (!table.name.empty())
        schema.Add(std::move(table));
    return schema;
}

} // namespace lorvo
