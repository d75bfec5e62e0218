// What is written beside the database, on a disk whose n-th call fails: each routine says so or has
// written all, and what stood there before isn't torn.

#include "platform/real_services.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"
#include "support/watched_disk.h"

#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <functional>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

QByteArray ContentOf(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

/// Runs `write` in fresh folders with its call number 1, 2, ... failing, until it passes.
void FailEachCall(const std::function<void(const QString& folder)>& prepare,
                  const std::function<void(const QString& folder)>& write,
                  const std::function<void(const QString& folder, bool failed)>& look) {
    for (const int code : {ENOSPC, EIO}) {
        for (int fails = 1, calls = 1; fails <= calls; ++fails) {
            const QTemporaryDir folder;
            prepare(folder.path());
            std::string failedCall;
            WatchedDisk disk(folder.path());
            disk.before = [&](int number, const DiskCall& call) {
                const bool isLock = call.path.endsWith(u".lock"); // holds nothing of a clerk's
                if (number != fails || isLock)
                    return 0;
                failedCall = std::to_string(static_cast<int>(call.kind)) + ' ' +
                             call.path.toStdString() + ' ' + call.newPath.toStdString();
                return code;
            };
            bool failed = false;
            try {
                write(folder.path());
            } catch (const Error&) {
                failed = true;
            }
            calls = disk.Calls();
            disk.before = nullptr;
            SCOPED_TRACE("failed: " + failedCall);
            look(folder.path(), failed);
        }
    }
}

const QByteArray kReport(100000, 'x');
const QByteArray kEarlier(300, 'y');

QString ReportIn(const QString& folder) {
    return folder + u"/Seznam.html"_s;
}

TEST(FailingPapers, AnExportIsWholeOrTheEarlierOneStands) {
    FailEachCall([](const QString& folder) { ReplaceFile(ReportIn(folder), kEarlier); },
                 [](const QString& folder) { ReplaceFile(ReportIn(folder), kReport); },
                 [](const QString& folder, bool failed) {
                     const QByteArray content = ContentOf(ReportIn(folder));
                     EXPECT_TRUE(content == kReport || (failed && content == kEarlier));
                 });
}

TEST(FailingPapers, ADocumentIsWholeOrNotThere) {
    FailEachCall(
        [](const QString&) {},
        [](const QString& folder) { (void)WriteNewFile(folder, u"Katalog"_s, u"docx"_s, kReport); },
        [](const QString& folder, bool failed) {
            const QString path = folder + u"/Katalog.docx"_s;
            EXPECT_TRUE(QFile::exists(path) ? ContentOf(path) == kReport : failed);
        });
}

TEST(FailingPapers, SettingsAreTheEarlierOrTheNewOnes) {
    const auto write = [](const QString& folder, const QString& text) {
        MakeSettingsTree(folder)->Write(u"Sys"_s, u"ShowGrid"_s, text);
    };
    FailEachCall([&](const QString& folder) { write(folder, u"1"_s); },
                 [&](const QString& folder) { write(folder, u"0"_s); },
                 [](const QString& folder, bool) {
                     const QString text = MakeSettingsTree(folder)->Read(u"Sys"_s, u"ShowGrid"_s);
                     EXPECT_TRUE(text == u"0" || text == u"1") << text.toStdString();
                 });
}

} // namespace
} // namespace lorvo::test
