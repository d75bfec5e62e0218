#include "office/copies/show_copies.h"

#include "office/copies/copy_ladder.h"
#include "platform/file_failure.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Copies on their way; a kill leaves one behind, which the next copy takes away.
const QString kUnfinished = u"rozpracovaná kopie.tmp"_s;
const QStringList kJournalEndings = {u"-wal"_s, u"-shm"_s, u"-journal"_s};

QStringList CopyPaths(const QString& folder) {
    QStringList names;
    // No pattern of names: what the toolkit keeps for it outlives the copy's thread under MinGW,
    // and the program never ends.
    for (const QString& name : QDir(folder).entryList(QDir::Files))
        if (MomentOfCopy(name))
            names << name;
    std::ranges::sort(names, std::greater<>()); // names are moments
    for (QString& name : names)
        name = folder + u'/' + name;
    return names;
}

DateValue MomentOf(const QString& path) {
    return MomentOfCopy(path.section(u'/', -1)).value_or(DateValue());
}

bool HaveSameBytes(const QString& one, const QString& other) {
    QFile first(one);
    QFile second(other);
    return first.size() == second.size() && first.open(QIODevice::ReadOnly) &&
           second.open(QIODevice::ReadOnly) && first.readAll() == second.readAll();
}

/// Two copies within one second stand under the next free one.
QString FreeCopyPath(const QString& folder, DateValue moment) {
    QString path = folder + u'/' + CopyName(moment);
    while (QFile::exists(path)) {
        const bool isMidnight = moment.SecondOfDay() + 1 == 24 * 3600;
        moment = isMidnight ? moment.DateOnly().PlusDays(1)
                            : moment.WithSecondOfDay(moment.SecondOfDay() + 1);
        path = folder + u'/' + CopyName(moment);
    }
    return path;
}

int RowsOrNone(const QString& path) {
    try {
        return FiguresOfDatabase(path).Rows();
    } catch (const StoreError&) {
        return -1;
    }
}

void DropOldCopies(const QString& folder, DateValue now) {
    const QStringList paths = CopyPaths(folder);
    std::vector<AgedCopy> copies;
    for (const QString& path : paths)
        copies.push_back({MomentOf(path), RowsOrNone(path)});
    for (const std::size_t position : CopiesToDrop(copies, now))
        QFile::remove(paths[static_cast<qsizetype>(position)]);
}

/// A database that the engine can't copy any more goes aside as it is, its log with it; one that is
/// gone may have left its log.
void PutAside(const QString& database, const QString& folder, DateValue now) {
    const QString target = folder + u"/poškozená "_s + CopyName(now);
    if (QFile::exists(database) && !QFile::copy(database, target))
        FailToWriteFile(target, u"na disku není volné místo"_s);
    for (const QString& ending : kJournalEndings)
        QFile::copy(database + ending, target + ending);
}

/// Whatever stands in the database's place stays in the folder of the copies too.
void KeepPresentState(const QString& programFolder, DateValue now) {
    try {
        MakeCopy(programFolder, now);
    } catch (const DiskError&) {
        throw;
    } catch (const StoreError&) { // damaged, empty, no show at all, or gone
        PutAside(DatabasePath(programFolder), CopiesFolder(programFolder), now);
    }
}

QString FaultOf(const QString& path) {
    try {
        RequireWholeDatabase(path);
        return {};
    } catch (const StoreError& fault) {
        return QString::fromUtf8(fault.what());
    }
}

QString Changes(const QString& what, const std::map<int, QString>& before,
                const std::map<int, QString>& after) {
    int came = 0;
    int changed = 0;
    for (const auto& [id, row] : after) {
        const auto earlier = before.find(id);
        came += earlier == before.end() ? 1 : 0;
        changed += earlier != before.end() && earlier->second != row ? 1 : 0;
    }
    const int went = static_cast<int>(before.size()) + came - static_cast<int>(after.size());
    return what + u": přibylo "_s + QString::number(came) + u", ubylo "_s + QString::number(went) +
           u", změnilo se "_s + QString::number(changed) + u'.';
}

} // namespace

QString DatabasePath(const QString& programFolder) {
    return programFolder + u"/data.mdb"_s;
}

QString CopiesFolder(const QString& programFolder) {
    return programFolder + u"/Zálohy"_s;
}

QString MakeCopy(const QString& programFolder, DateValue now) {
    const QString folder = CopiesFolder(programFolder);
    if (!QDir().mkpath(folder))
        FailOnFile(u"Nejde založit složka"_s, folder, CauseOfLastFailure());
    const QString unfinished = folder + u'/' + kUnfinished;
    QFile::remove(unfinished);
    CopyDatabase(DatabasePath(programFolder), unfinished);
    const QStringList older = CopyPaths(folder);
    if (!older.empty() && HaveSameBytes(older.front(), unfinished)) {
        QFile::remove(unfinished);
        return older.front();
    }
    const QString path = FreeCopyPath(folder, now);
    RenameOver(unfinished, path);
    DropOldCopies(folder, now);
    return path;
}

std::vector<ShowCopy> ListCopies(const QString& programFolder, bool checked) {
    std::vector<ShowCopy> copies;
    for (const QString& path : CopyPaths(CopiesFolder(programFolder))) {
        ShowCopy& copy = copies.emplace_back();
        copy.path = path;
        copy.moment = MomentOf(path);
        try {
            copy.figures = FiguresOfDatabase(path);
        } catch (const StoreError& fault) {
            copy.fault = QString::fromUtf8(fault.what());
        }
        if (checked && copy.fault.isEmpty())
            copy.fault = FaultOf(path);
    }
    return copies;
}

std::optional<ShowCopy> NewestGoodCopy(const QString& programFolder, DateValue now) {
    std::vector<ShowCopy> copies = ListCopies(programFolder, true);
    std::stable_partition(copies.begin(), copies.end(),
                          [now](const ShowCopy& copy) { return copy.moment <= now; });
    for (ShowCopy& copy : copies)
        if (copy.fault.isEmpty())
            return std::move(copy);
    return std::nullopt;
}

QStringList CompareDatabases(const QString& earlier, const QString& later) {
    QStringList sentences;
    for (const auto& [table, what] :
         {std::pair{"Psi", u"Psi"_s}, std::pair{"Majitele", u"Vystavovatelé"_s},
          std::pair{"Uhrady", u"Platby"_s}})
        sentences << Changes(what, RowsOfDatabase(earlier, table), RowsOfDatabase(later, table));
    return sentences;
}

void PutCopyBack(const QString& programFolder, const QString& copy, DateValue now) {
    const QString database = DatabasePath(programFolder);
    RequireWholeDatabase(copy);
    // Taken before the present state is copied: that may let the oldest copy go.
    const QString fresh = database + u".nová"_s;
    QFile::remove(fresh);
    const auto noDraftStays = qScopeGuard([&fresh] { QFile::remove(fresh); });
    CopyDatabase(copy, fresh);
    KeepPresentState(programFolder, now);
    // A log of the old file must never meet the new one.
    for (const QString& ending : kJournalEndings)
        QFile::remove(database + ending);
    RenameOver(fresh, database);
    RequireWholeDatabase(database);
}

} // namespace lorvo
