// A file or a folder that its user may not write. For systems where the rights of a file say so.

#include "store/store_test.h"

#include <QDir>
#include <QFile>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// Runs `body` as a user without rights, since the administrator may write anything.
bool SucceedsWithoutRights(const std::function<bool()>& body) {
    const pid_t child = fork();
    if (child == 0) {
        const bool dropped = geteuid() != 0 || setuid(65534) == 0;
        _exit(dropped && body() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(UnwritableFileTest, AFileOrAFolderThatCannotBeWrittenIsRefusedUntouched) {
    const QTemporaryDir folder;
    const QString path = TempDatabase::CopyTo(folder.path());
    const auto isRefusedFor = [&](const char* reason) {
        return SucceedsWithoutRights([&] {
            Connection connection;
            return FailureOf([&] { connection.Open(path); }).find(reason) != std::string::npos;
        });
    };
    constexpr auto kAllRead =
        QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
    constexpr auto kAllEnter =
        QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    constexpr auto kAllWrite =
        QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    const QByteArray before = BytesOf(path);
    QFile::setPermissions(folder.path(), kAllRead | kAllEnter | kAllWrite);
    QFile::setPermissions(path, kAllRead);
    EXPECT_TRUE(isRefusedFor("jen pro čtení"));
    QFile::setPermissions(path, kAllRead | kAllWrite);
    QFile::setPermissions(folder.path(), kAllRead | kAllEnter);
    EXPECT_TRUE(isRefusedFor("do složky"));
    QFile::setPermissions(folder.path(), kAllRead | kAllEnter | kAllWrite);
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList(u"data.mdb"_s));
}

} // namespace
} // namespace lorvo
