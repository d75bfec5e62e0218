#include "store/upkeep.h"

#include "store/connection_internals.h"
#include "store/data_module.h"
#include "store/engine_failure.h"

#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

int AddLine(void* faults, int, char** texts, char**) {
    static_cast<QStringList*>(faults)->append(QString::fromUtf8(texts[0]));
    return 0;
}

void Run(const char* sql, QStringList& lines) {
    sqlite3* const handle = TheDataModule().Conn1.Internals().Handle();
    if (sqlite3_exec(handle, sql, AddLine, &lines, nullptr) != SQLITE_OK)
        ThrowFailure(handle);
}

} // namespace

QStringList IntegrityFaults() {
    QStringList lines;
    Run("PRAGMA integrity_check", lines);
    lines.removeAll(u"ok"_s);
    return lines;
}

void WriteFileAnew() {
    QStringList lines;
    Run("VACUUM", lines);
    Run("PRAGMA wal_checkpoint(TRUNCATE)", lines);
}

} // namespace lorvo
