#include "store/file_in_place.h"

#include "platform/values/errors.h"
#include "store/database_copy.h"
#include "store/database_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Where the open file was moved together with its journal; empty when it wasn't, or can't be told.
QString NewPlaceOf(const QString& path) {
    const QDir openFiles(u"/proc/self/fd"_s);
    for (const QFileInfo& open : openFiles.entryInfoList(QDir::Files)) {
        const QString target = open.symLinkTarget();
        const bool isOurs = QFileInfo(target).fileName() == QFileInfo(path).fileName();
        if (isOurs && target != path && QFile::exists(target + u"-wal"_s))
            return target;
    }
    return {};
}

QString FreePlaceBeside(const QString& path) {
    const QString folder = QFileInfo(path).path();
    QDir().mkpath(folder);
    QString place = folder + u"/data zachráněná.mdb"_s;
    for (int number = 2; QFile::exists(place); ++number)
        place = folder + u"/data zachráněná (%1).mdb"_s.arg(number);
    return place;
}

} // namespace

bool IsFileInPlace(SQLite::Database& database) {
    int hasMoved = 0;
    sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved);
    return hasMoved == 0;
}

std::string SaveLostFile(SQLite::Database& database, const QString& path) {
    if (const QString place = NewPlaceOf(path); !place.isEmpty())
        return AboutFile(path, u"soubor byl za běhu programu přesunut do „%1“"_s.arg(
                                   QDir::toNativeSeparators(place)));
    const std::string reason =
        AboutFile(path, u"soubor byl za běhu programu odstraněn nebo nahrazen jiným"_s);
    try {
        const QString place = FreePlaceBeside(path);
        CopyOpenDatabase(database, place);
        return reason + u" Data, se kterými program pracoval, jsou v souboru „%1“. Chcete-li "
                        u"pracovat s nimi, přejmenujte ho na data.mdb."_s
                            .arg(QDir::toNativeSeparators(place))
                            .toStdString();
    } catch (const StoreError& failure) {
        throw CorruptStoreError(
            reason + " Data, se kterými program pracoval, nešlo uložit jinam. " + failure.what());
    }
}

} // namespace lorvo
