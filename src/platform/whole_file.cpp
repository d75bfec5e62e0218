#include "platform/whole_file.h"

#include "platform/file_failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <cerrno>
#include <filesystem>
#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The cause of what has just failed; a failure without one is told as a full disk's, which is what
/// a short write without a word means.
int LastCause() {
    return errno != 0 ? errno : ENOSPC;
}

bool Sync(int handle) {
#ifdef Q_OS_WIN
    return _commit(handle) == 0;
#else
    return fsync(handle) == 0;
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
    Draft(const QString& path, const QByteArray& bytes)
        : folder_(QFileInfo(path).path()), file_(folder_ + u"/Lorvo-XXXXXX.tmp"_s) {
        errno = 0;
        if (!file_.open() || file_.write(bytes) != bytes.size() || !file_.flush() ||
            !Sync(file_.handle()))
            FailToWriteFile(path, LastCause());
        file_.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                             QFile::ReadOther);
    }

    /// False when another file has the name.
    bool NameAnew(const QString& path) {
        errno = 0;
        if (QFile::exists(path))
            return false;
        if (!file_.rename(path)) {
            if (QFile::exists(path))
                return false;
            FailToWriteFile(path, LastCause());
        }
        Keep();
        return true;
    }
    void NameInsteadOf(const QString& path) {
        std::error_code error;
        const QString draft = file_.fileName();
        file_.close();
        std::filesystem::rename(draft.toStdU16String(), path.toStdU16String(), error);
        if (error)
            FailToWriteFile(path, error.default_error_condition().value());
        Keep();
    }

  private:
    void Keep() {
        file_.setAutoRemove(false);
        SyncFolder(folder_);
    }

    QString folder_;
    QTemporaryFile file_;
};

} // namespace

void ReplaceFile(const QString& path, const QByteArray& bytes) {
    if (const QFileInfo older(path); older.isFile() && !older.isWritable())
        FailToWriteFile(path, EACCES);
    Draft(path, bytes).NameInsteadOf(path);
}

QString WriteNewFile(const QString& folder, const QString& stem, const QString& ending,
                     const QByteArray& bytes) {
    const QString first = folder + u'/' + stem + u'.' + ending;
    errno = 0;
    if (!QDir().mkpath(folder))
        FailToWriteFile(first, LastCause());
    Draft draft(first, bytes);
    QString path = first;
    for (int number = 2; !draft.NameAnew(path); ++number)
        path = u"%1/%2 (%3).%4"_s.arg(folder, stem, QString::number(number), ending);
    return path;
}

} // namespace lorvo
