#pragma once
// A row as a list of its fields.

#include "platform/values/errors.h"
#include "store/record_set.h"

#include <vector>

namespace lorvo {

/// All fields of the current row, of whatever statement.
inline std::vector<Value> FieldsOf(const RecordSet& set) {
    std::vector<Value> fields;
    try {
        for (int position = 0;; ++position)
            fields.push_back(set.Field(position));
    } catch (const StoreError&) { // behind the last
        return fields;
    }
}

} // namespace lorvo
