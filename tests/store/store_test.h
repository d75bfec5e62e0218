#pragma once
// What the store's tests share.

#include "store/data_module.h"

#include "support/row_fields.h"
#include "support/temp_database.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lorvo {

/// The rows that a statement yields, each with its fields parted by bars; Null is shown as "Null".
inline std::vector<std::string> RowsOf(std::string_view statement) {
    RecordSet& set = TheDataModule().rsrsQuery1;
    std::vector<std::string> rows;
    for (set.Open(statement); !set.Eof(); set.MoveNext()) {
        std::string row;
        for (const Value& value : FieldsOf(set))
            row += "|" + (value.IsNull() ? std::string("Null") : value.ToText().toStdString());
        row.erase(0, 1);
        rows.push_back(std::move(row));
    }
    set.Close();
    return rows;
}

/// The single field of the single row.
inline std::string ValueOf(std::string_view statement) {
    const std::vector<std::string> rows = RowsOf(statement);
    return rows.size() == 1 ? rows[0] : "rows: " + std::to_string(rows.size());
}

/// What the failure of `action` says; empty when it doesn't fail.
template<typename Action> std::string FailureOf(Action action) {
    try {
        action();
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

using Strings = std::vector<std::string>;

class StoreTest : public ::testing::Test {
  protected:
    TempDatabase database;
    DataModule& module = TheDataModule();
};

} // namespace lorvo
