#pragma once
// A static client-side cursor over one statement.

#include "store/value.h"

#include <memory>
#include <string>
#include <string_view>

namespace lorvo {

class Connection;

/// A reusable cursor: opened with a statement in the store's habitual dialect, read or written,
/// and closed. It holds one statement at a time; opening a set that a failure left open closes it
/// first. All members raise StoreError (CorruptStoreError when the file is damaged) with the
/// statement's table and the reason.
class RecordSet {
  public:
    enum class Lock { Updatable, ReadOnly };

    RecordSet(Connection& connection, std::string name, Lock lock);
    ~RecordSet();
    RecordSet(const RecordSet&) = delete;
    RecordSet& operator=(const RecordSet&) = delete;

    /// Reads all rows of a SELECT and stands on the first. A DELETE is carried out, yields no rows
    /// and leaves the set shut.
    void Open(std::string_view statement);
    void Close();

    int RecordCount() const;
    bool Eof() const;
    void MoveNext();

    /// Field of the current row, by name in any letter case (the first of that name; a join's
    /// other ones by "Table.Field") or by position from 0. StoreError for a field or a row that is
    /// not there, and for an amount that is no number in the file.
    const Value& Field(std::string_view name) const;
    const Value& Field(int position) const;
    /// Whether a field of amounts holds one: neither Null nor a text that got into the file.
    bool IsNumeric(std::string_view amount) const;

    /// Starts a new row; its fields are assigned with Set and stored by Update. Only a set opened
    /// by a plain SELECT of one table takes rows and changes.
    void AddNew();
    /// Assigns a field of the new or the current row; converted to the field's type on the way
    /// (a boolean stores -1 or 0). StoreError names the field when the value doesn't fit.
    void Set(std::string_view name, const Value& value);
    /// Stores the new row, or the assigned fields of the current one, and reads the row back, so
    /// that Field("ID") is the new row's number. On return the edit is on disk.
    void Update();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace lorvo
