#pragma once
// Rows read one after the other, typed, for routines that walk a whole table.

#include "store/value.h"

#include <memory>
#include <string_view>
#include <vector>

namespace lorvo {

class Connection;

/// One pass over the rows of a SELECT in the store's habitual dialect. Nothing is copied but the
/// cells that are asked for, so that it suits long lists; a record set suits everything else.
/// All members raise StoreError (CorruptStoreError when the file is damaged).
///
///     Query dogs(TheDataModule().Conn1, "SELECT ID, Jmeno FROM Psi WHERE PlemenoID = ?", {breed});
///     while (dogs.Next())
///         Add(dogs.Int(0), dogs.Text(1));
class Query {
  public:
    /// `parameters` stand for the statement's question marks, in their order.
    Query(Connection& connection, std::string_view statement,
          const std::vector<Value>& parameters = {});
    ~Query();
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    /// Moves to the first row, then to each next one; false behind the last.
    [[nodiscard]] bool Next();

    /// Cells of the current row by position from 0. Null reads as the type's zero.
    bool IsNull(int column) const;
    int Int(int column) const;
    bool Bool(int column) const;
    Currency Amount(int column) const;
    DateValue Date(int column) const;
    QString Text(int column) const;
    /// The cell as a record set would hold it.
    Value Cell(int column) const;

  private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace lorvo
