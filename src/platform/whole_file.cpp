#include "platform/whole_file.h"

#include "platform/file_failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#undef ReplaceFile // a name of the system too
#else
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

bool RenamedOver(const QString& from, const QString& to) {
#ifdef Q_OS_WIN
    const auto wide = [](const QString& path) {
        return QDir::toNativeSeparators(path).toStdWString();
    };
    if (MoveFileExW(wide(from).c_str(), wide(to).c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return true;
    // A file that is open, as the folder's lock holds the database, can still be exchanged.
    const DWORD cause = GetLastError();
    if (ReplaceFileW(wide(to).c_str(), wide(from).c_str(), nullptr, 0, nullptr, nullptr))
        return true;
    SetLastError(cause);
    return false;
#else
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
#endif
}

/// Of failures that follow, only one that sets it is told.
void ForgetLastFailure() {
#ifdef Q_OS_WIN
    SetLastError(0);
#else
    errno = 0;
#endif
}

/// A new name is on the disk when its folder is. Where folders can't be synced the system sees to
/// it.
void SyncFolder(const QString& folder) {
#ifndef Q_OS_WIN
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
#else
    Q_UNUSED(folder)
#endif
}

/// The bytes under a name of their own in the folder, whole and synced; gone again with the object
/// unless they were given a better one.
class Draft {
  public:
    /// `path` is the name that the file is meant for, and that a failure names.
    Draft(const QString& path, const QByteArray& bytes) : folder_(QFileInfo(path).path()) {
        ForgetLastFailure();
        if (!Open() || file_.write(bytes) != bytes.size() || !file_.flush())
            Fail(path, CauseOfFailure(file_));
        if (!SyncToDisk(file_))
            Fail(path, CauseOfLastFailure());
        file_.close(); // some systems rename no open file
    }
    ~Draft() {
        if (!isKept_)
            Discard();
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    /// False when another file has the name.
    bool NameAnew(const QString& path) {
        ForgetLastFailure();
        if (QFile::exists(path))
            return false;
        if (!file_.rename(path)) {
            if (QFile::exists(path))
                return false;
            FailToWriteFile(path, CauseOfFailure(file_));
        }
        Keep();
        return true;
    }
    void NameInsteadOf(const QString& path) {
        if (!RenamedOver(file_.fileName(), path))
            FailToWriteFile(path, CauseOfLastFailure());
        Keep();
    }

  private:
    bool Open() {
        do {
            const quint32 number = QRandomGenerator::global()->generate();
            file_.setFileName(folder_ + u"/Lorvo-"_s + QString::number(number, 16) + u".tmp"_s);
        } while (QFile::exists(file_.fileName()));
        return file_.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    }
    [[noreturn]] void Fail(const QString& path, const QString& cause) {
        Discard(); // the object that failed to be made has no end
        FailToWriteFile(path, cause);
    }
    /// The file's own removal gives up when the rest of its buffer can't be written.
    void Discard() {
        file_.close();
        QFile::remove(file_.fileName());
    }
    void Keep() {
        isKept_ = true;
        SyncFolder(folder_);
    }

    QString folder_;
    QFile file_;
    bool isKept_ = false;
};

} // namespace

QByteArray ReadWholeFile(const QString& path) {
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        FailOnFile(u"Soubor nelze přečíst"_s, path, CauseOfFailure(file));
    return bytes;
}

bool SyncToDisk(const QFileDevice& file) {
#ifdef Q_OS_WIN
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()))) != 0;
#else
    return fsync(file.handle()) == 0;
#endif
}

void ReplaceFile(const QString& path, const QByteArray& bytes) {
    const QFileInfo older(path);
    if (older.isDir())
        FailToWriteFile(path, u"tento název má složka"_s);
    if (older.isFile() && !older.isWritable())
        FailToWriteFile(path, u"chybí právo zápisu do souboru nebo složky"_s);
    Draft(path, bytes).NameInsteadOf(path);
}

void RenameOver(const QString& from, const QString& to) {
    if (!RenamedOver(from, to))
        FailToWriteFile(to, CauseOfLastFailure());
}

QString WriteNewFile(const QString& folder, const QString& stem, const QString& ending,
                     const QByteArray& bytes) {
    const QString first = folder + u'/' + stem + u'.' + ending;
    ForgetLastFailure();
    if (!QDir().mkpath(folder))
        FailToWriteFile(first, CauseOfLastFailure());
    Draft draft(first, bytes);
    QString path = first;
    for (int number = 2; !draft.NameAnew(path); ++number)
        path = u"%1/%2 (%3).%4"_s.arg(folder, stem, QString::number(number), ending);
    return path;
}

} // namespace lorvo
