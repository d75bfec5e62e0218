#pragma once
// Edits that are told apart by their number alone, seen from within and from without.

#include "store/store_test.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace lorvo {

class RingsTest : public StoreTest {
  protected:
    void AddRing() {
        module.rsKruhy.Open("SELECT * FROM Kruhy WHERE ID = 0");
        module.rsKruhy.AddNew();
        module.rsKruhy.Update();
    }

    /// What another program finds in the file.
    int RingsOutside() const {
        SQLite::Database outside(database.Path().toStdString());
        return outside.execAndGet("SELECT COUNT(*) FROM Kruhy").getInt();
    }
};

} // namespace lorvo
