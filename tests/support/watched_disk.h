#pragma once
// Everything that the process asks of the disk below one folder, written down, and failed on order.

#include <QByteArray>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace lorvo::test {

struct DiskCall {
    enum class Kind { Write, Sync, SyncFolder, Truncate, Rename, Remove };

    Kind kind;
    QString path;
    qint64 offset = 0; ///< of Write; the new length of Truncate
    QByteArray bytes;  ///< of Write
    QString newPath;   ///< of Rename
};

/// Stands between this program (the engine and the toolkit as well) and the system for the lifetime
/// of the object. Linked into a test program it takes the place of the C library's own calls.
class WatchedDisk {
  public:
    explicit WatchedDisk(QString folder);
    ~WatchedDisk();
    WatchedDisk(const WatchedDisk&) = delete;
    WatchedDisk& operator=(const WatchedDisk&) = delete;

    /// Asked before each call below the folder, which count from 1; the error number to fail it
    /// with, or 0. Not called again while it runs.
    std::function<int(int number, const DiskCall& call)> before;
    /// How many calls came, and what they were as far as they went through.
    int Calls() const { return calls_; }
    const std::vector<DiskCall>& Passed() const { return passed_; }

    /// For the calls alone: the error number, or 0 to let the call through.
    int Ask(DiskCall call);
    bool Concerns(const QString& path) const;

  private:
    const QString folder_;
    int calls_ = 0;
    bool asking_ = false;
    std::vector<DiskCall> passed_;
};

/// The files of a folder by name as a power cut leaves them, whose content was `before`: of `calls`
/// the first `count` were made, and of these only what was synced is sure to be there. `survives`
/// says of each other one whether it reached the disk.
std::map<QString, QByteArray> AfterPowerCut(const std::map<QString, QByteArray>& before,
                                            const std::vector<DiskCall>& calls, std::size_t count,
                                            const std::function<bool()>& survives);

/// All files of a folder by name, and a folder made of such.
std::map<QString, QByteArray> FilesOf(const QString& folder);
void MakeFiles(const QString& folder, const std::map<QString, QByteArray>& files);

} // namespace lorvo::test
