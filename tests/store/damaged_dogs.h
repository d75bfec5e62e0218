#pragma once
// A file whose damage shows only when its dogs are read.

#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

namespace lorvo {

/// Adds a dog to a database that nobody has open, and spoils the table's first page.
inline void DamageDogs(const QString& path) {
    qint64 page = 0;
    {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        database.exec("INSERT INTO Psi (Jmeno) VALUES ('Asta')");
        page =
            database.execAndGet("SELECT rootpage FROM sqlite_schema WHERE name = 'Psi'").getInt64();
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek((page - 1) * 4096));
    ASSERT_EQ(file.write(QByteArray(12, '\x7f')), 12);
}

} // namespace lorvo
