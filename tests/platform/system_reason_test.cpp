#include "platform/system_reason.h"

#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

TEST(SystemReason, IsCzechWithTheSystemsOwnTextBehind) {
    EXPECT_TRUE(SystemReason(ENOSPC).startsWith(u"na disku není místo ("));
    EXPECT_TRUE(SystemReason(EACCES).startsWith(u"chybí oprávnění ("));
    EXPECT_TRUE(SystemReason(EFBIG).startsWith(u"soubor by byl větší, než systém dovoluje ("));
    EXPECT_TRUE(SystemReason(EPIPE).startsWith(u"systém hlásí chybu ("));
    EXPECT_TRUE(SystemReason(EROFS).endsWith(qt_error_string(EROFS) + u')'));
}

TEST(SystemReason, TellsWhyAFileFailed) {
    const QTemporaryDir folder;
    QFile missing(folder.filePath(QStringLiteral("není")));
    EXPECT_FALSE(missing.open(QIODevice::ReadOnly));
    EXPECT_TRUE(FileReason(missing).startsWith(u"soubor nebo složka neexistuje ("))
        << FileReason(missing).toStdString();
    QFile ofFolder(folder.path());
    EXPECT_FALSE(ofFolder.open(QIODevice::WriteOnly));
    EXPECT_TRUE(FileReason(ofFolder).startsWith(u"na místě souboru je složka ("))
        << FileReason(ofFolder).toStdString();
    errno = ENOSPC;
    EXPECT_EQ(LastSystemReason(), SystemReason(ENOSPC));
}

} // namespace
} // namespace lorvo
