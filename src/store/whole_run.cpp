#include "store/whole_run.h"

#include "platform/values/errors.h"
#include "store/connection_internals.h"

#include <sqlite3.h>

namespace lorvo {

WholeRun::WholeRun(Connection& connection) : connection_(connection) {
    Connection::Impl& inside = connection.Internals();
    if (inside.editRuns > 0)
        throw StoreError("Databáze právě zapisuje; zkuste to znovu.");
    inside.BeginRun(inside.editRuns);
    inside.isWhole = true;
}

WholeRun::~WholeRun() {
    if (finished_)
        return;
    // The engine has rolled back by itself where the failure was one of the disk.
    sqlite3* const handle = connection_.Internals().Handle();
    if (!sqlite3_get_autocommit(handle))
        sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
    Leave();
    try {
        connection_.Internals().RenewTransaction();
    } catch (const StoreError&) { // reads go on without a shared transaction
    }
}

void WholeRun::Finish() {
    finished_ = true;
    Leave();
    connection_.Internals().RenewTransaction();
}

void WholeRun::Leave() {
    connection_.Internals().isWhole = false;
    --connection_.Internals().editRuns;
}

} // namespace lorvo
