#include "platform/whole_file.h"

#include "platform/values/errors.h"
#include "support/print_qt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace lorvo {
namespace {

class WholeFile : public testing::Test {
  protected:
    QString Path(const QString& name) const { return folder_.filePath(name); }
    QByteArray Bytes(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
    }
    QStringList Names() const {
        return QDir(folder_.path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    /// What is said when writing fails.
    static QString Failure(const std::function<void()>& write) {
        try {
            write();
        } catch (const PlatformError& error) {
            return QString::fromUtf8(error.what());
        }
        return u"no failure"_qs;
    }

    QTemporaryDir folder_;
};

TEST_F(WholeFile, ReplacesTheOlderOne) {
    ReplaceFile(Path(u"Výstup.html"_qs), "long text");
    ReplaceFile(Path(u"Výstup.html"_qs), "\x81x");
    EXPECT_EQ(Bytes(u"Výstup.html"_qs), "\x81x");
    EXPECT_EQ(Names(), QStringList(u"Výstup.html"_qs));
}

TEST_F(WholeFile, CanBeReadByTheProgramThatOpensIt) {
    ReplaceFile(Path(u"a.html"_qs), "a");
    EXPECT_TRUE(QFile::permissions(Path(u"a.html"_qs)) & QFile::ReadOther);
}

TEST_F(WholeFile, ANewOneStandsBesideTheOlderOnes) {
    const QString folder = Path(u"Tisky"_qs);
    EXPECT_EQ(WriteNewFile(folder, u"Katalog"_qs, u"docx"_qs, "1"), folder + u"/Katalog.docx"_qs);
    EXPECT_EQ(WriteNewFile(folder, u"Katalog"_qs, u"docx"_qs, "2"),
              folder + u"/Katalog (2).docx"_qs);
    EXPECT_EQ(Bytes(u"Tisky/Katalog.docx"_qs), "1");
    EXPECT_EQ(Bytes(u"Tisky/Katalog (2).docx"_qs), "2");
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST_F(WholeFile, FailuresNameTheFileAndTheCauseInCzech) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(u"a.html"_qs));
    EXPECT_EQ(Failure([&] { ReplaceFile(Path(u"a.html"_qs), "x"); }),
              u"Soubor nelze zapsat „%1“: tento název má složka"_qs.arg(Path(u"a.html"_qs)));
    EXPECT_EQ(Failure([&] { ReplaceFile(Path(u"chybí/b.html"_qs), "x"); }),
              u"Soubor nelze zapsat „%1“: soubor nebo jeho složka neexistuje"_qs.arg(
                  Path(u"chybí/b.html"_qs)));
    ReplaceFile(Path(u"Tisky"_qs), "a file in the folder's place");
    const QString failure =
        Failure([&] { (void)WriteNewFile(Path(u"Tisky"_qs), u"K"_qs, u"docx"_qs, "x"); });
    EXPECT_TRUE(failure.startsWith(u"Soubor nelze zapsat „%1/K.docx“: "_qs.arg(Path(u"Tisky"_qs))))
        << failure.toStdString();
}

#ifdef Q_OS_UNIX // whose processes can be given less room than they ask for
/// For its life no file of the process grows over that many bytes.
class NarrowDisk {
  public:
    explicit NarrowDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit narrow{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &narrow);
    }
    ~NarrowDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    void (*handler_)(int);
    rlimit before_{};
};

TEST_F(WholeFile, ADiskThatEndsInTheMiddleLeavesTheOlderOneAndNothingElse) {
    ReplaceFile(Path(u"a.html"_qs), "older");
    const QByteArray large(1 << 20, 'x');
    QString replacing;
    QString adding;
    {
        const NarrowDisk narrow(1 << 16);
        replacing = Failure([&] { ReplaceFile(Path(u"a.html"_qs), large); });
        adding = Failure([&] { (void)WriteNewFile(folder_.path(), u"b"_qs, u"docx"_qs, large); });
    }
    EXPECT_TRUE(replacing.endsWith(u"a.html“: soubor je větší, než disk nebo systém dovoluje"_qs))
        << replacing.toStdString();
    EXPECT_TRUE(adding.contains(u"b.docx“: "_qs)) << adding.toStdString();
    EXPECT_EQ(Bytes(u"a.html"_qs), "older");
    EXPECT_EQ(Names(), QStringList(u"a.html"_qs));
}
#endif

} // namespace
} // namespace lorvo
