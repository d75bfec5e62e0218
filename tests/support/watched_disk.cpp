#include "support/watched_disk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <mutex>
#include <stdexcept>
#include <sys/syscall.h>
#include <unistd.h>

namespace lorvo::test {

namespace {

std::atomic<WatchedDisk*> watch = nullptr;
std::recursive_mutex watchMutex;

QString PathOf(int file) {
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path, sizeof path);
    return length > 0 ? QString::fromUtf8(path, length) : QString();
}

/// Whether the call may go through; sets errno where it may not.
bool Allowed(DiskCall call) {
    const std::lock_guard lock(watchMutex);
    WatchedDisk* const disk = watch;
    if (!disk || !disk->Concerns(call.path))
        return true;
    const int code = disk->Ask(std::move(call));
    if (code != 0)
        errno = code;
    return code == 0;
}

bool Allowed(DiskCall::Kind kind, int file, qint64 offset = 0, const void* bytes = nullptr,
             size_t length = 0) {
    if (!watch)
        return true;
    return Allowed({kind,
                    PathOf(file),
                    offset,
                    QByteArray(static_cast<const char*>(bytes), static_cast<qsizetype>(length)),
                    {}});
}

} // namespace

WatchedDisk::WatchedDisk(QString folder) : folder_(std::move(folder)) {
    watch = this;
}

WatchedDisk::~WatchedDisk() {
    const std::lock_guard lock(watchMutex);
    watch = nullptr;
}

bool WatchedDisk::Concerns(const QString& path) const {
    // The engine's shared memory is no part of what has to last.
    return !asking_ && path.startsWith(folder_) && !path.endsWith(u"-shm");
}

int WatchedDisk::Ask(DiskCall call) {
    ++calls_;
    asking_ = true;
    const int code = before ? before(calls_, call) : 0;
    asking_ = false;
    if (code == 0)
        passed_.push_back(std::move(call));
    return code;
}

// Power cuts --------------------------------------------------------------------------------------

namespace {

void Apply(QByteArray& content, const DiskCall& call) {
    if (call.kind == DiskCall::Kind::Truncate) {
        content.resize(call.offset, '\0');
        return;
    }
    const qsizetype end = call.offset + call.bytes.size();
    if (content.size() < end)
        content.resize(end, '\0');
    content.replace(call.offset, call.bytes.size(), call.bytes);
}

} // namespace

std::map<QString, QByteArray> AfterPowerCut(const std::map<QString, QByteArray>& before,
                                            const std::vector<DiskCall>& calls, std::size_t count,
                                            const std::function<bool()>& survives) {
    std::map<QString, QByteArray> disk = before;
    std::vector<const DiskCall*> pending;
    const auto apply = [&disk](const DiskCall& call) {
        const QString name = QFileInfo(call.path).fileName();
        if (call.kind == DiskCall::Kind::Remove) {
            disk.erase(name);
        } else if (call.kind == DiskCall::Kind::Rename) {
            disk[QFileInfo(call.newPath).fileName()] = disk[name];
            disk.erase(name);
        } else {
            Apply(disk[name], call);
        }
    };
    for (std::size_t i = 0; i < count; ++i) {
        const DiskCall& call = calls[i];
        const bool syncsAll = call.kind == DiskCall::Kind::SyncFolder;
        if (call.kind != DiskCall::Kind::Sync && !syncsAll) {
            pending.push_back(&call);
            continue;
        }
        std::erase_if(pending, [&](const DiskCall* waiting) {
            const bool ofFolder =
                waiting->kind == DiskCall::Kind::Remove || waiting->kind == DiskCall::Kind::Rename;
            const bool reaches = syncsAll ? ofFolder : !ofFolder && waiting->path == call.path;
            if (reaches)
                apply(*waiting);
            return reaches;
        });
    }
    for (const DiskCall* waiting : pending)
        if (survives())
            apply(*waiting);
    return disk;
}

std::map<QString, QByteArray> FilesOf(const QString& folder) {
    std::map<QString, QByteArray> files;
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        QFile file(QDir(folder).filePath(name));
        if (!name.endsWith(u"-shm") && file.open(QIODevice::ReadOnly))
            files[name] = file.readAll();
    }
    return files;
}

void MakeFiles(const QString& folder, const std::map<QString, QByteArray>& files) {
    for (const auto& [name, bytes] : files) {
        QFile file(QDir(folder).filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("can't write " + file.fileName().toStdString());
    }
}

} // namespace lorvo::test

// What stands before the C library's own calls --------------------------------------------------

using lorvo::test::Allowed;
using Kind = lorvo::test::DiskCall::Kind;

extern "C" {

ssize_t write(int file, const void* bytes, size_t length) {
    if (lorvo::test::watch && !Allowed(Kind::Write, file, lseek(file, 0, SEEK_CUR), bytes, length))
        return -1;
    return syscall(SYS_write, file, bytes, length);
}

ssize_t pwrite64(int file, const void* bytes, size_t length, off64_t offset) {
    if (!Allowed(Kind::Write, file, offset, bytes, length))
        return -1;
    return syscall(SYS_pwrite64, file, bytes, length, offset);
}

ssize_t pwrite(int file, const void* bytes, size_t length, off_t offset) {
    return pwrite64(file, bytes, length, offset);
}

int fdatasync(int file) {
    if (!Allowed(Kind::Sync, file))
        return -1;
    return static_cast<int>(syscall(SYS_fdatasync, file));
}

int fsync(int file) {
    if (lorvo::test::watch) {
        const bool isFolder = QFileInfo(lorvo::test::PathOf(file)).isDir();
        if (!Allowed(isFolder ? Kind::SyncFolder : Kind::Sync, file))
            return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, file));
}

int ftruncate64(int file, off64_t length) noexcept {
    if (!Allowed(Kind::Truncate, file, length))
        return -1;
    return static_cast<int>(syscall(SYS_ftruncate, file, length));
}

int ftruncate(int file, off_t length) noexcept {
    return ftruncate64(file, length);
}

int rename(const char* from, const char* to) noexcept {
    if (lorvo::test::watch &&
        !Allowed({Kind::Rename, QString::fromUtf8(from), 0, {}, QString::fromUtf8(to)}))
        return -1;
    return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

// A file without a name is given one by its number.
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    char path[4096] = {};
    const bool isNameless = lorvo::test::watch && QByteArray(from).startsWith("/proc/self/fd/") &&
                            readlink(from, path, sizeof path - 1) > 0;
    if (isNameless &&
        !Allowed({Kind::Rename, QString::fromUtf8(path), 0, {}, QString::fromUtf8(to)}))
        return -1;
    return static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int unlink(const char* path) noexcept {
    if (lorvo::test::watch && !Allowed({Kind::Remove, QString::fromUtf8(path), 0, {}, {}}))
        return -1;
    return static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}
}
