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

using namespace Qt::StringLiterals;

namespace {

class WholeFile : public testing::Test {
  protected:
    QString Path(const QString& name) const { return folder_.filePath(name); }
    /// As messages show it.
    QString Shown(const QString& name) const { return QDir::toNativeSeparators(Path(name)); }
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
        return u"no failure"_s;
    }

    QTemporaryDir folder_;
};

TEST_F(WholeFile, IsReadToItsEndOrNotAtAll) {
    ReplaceFile(Path(u"vstup.csv"_s), "a;b\r\n\0c");
    EXPECT_EQ(ReadWholeFile(Path(u"vstup.csv"_s)), "a;b\r\n\0c");
    EXPECT_EQ(Failure([this] { (void)ReadWholeFile(Path(u"není.csv"_s)); }),
              u"Soubor nelze přečíst „"_s + Shown(u"není.csv"_s) +
                  u"“: soubor nebo jeho složka neexistuje"_s);
    EXPECT_TRUE(Failure([this] {
                    (void)ReadWholeFile(folder_.path());
                }).startsWith(u"Soubor nelze přečíst"_s));
}

TEST_F(WholeFile, ReplacesTheOlderOne) {
    ReplaceFile(Path(u"Výstup.html"_s), "long text");
    ReplaceFile(Path(u"Výstup.html"_s), "\x81x");
    EXPECT_EQ(Bytes(u"Výstup.html"_s), "\x81x");
    EXPECT_EQ(Names(), QStringList(u"Výstup.html"_s));
}

TEST_F(WholeFile, CanBeReadByTheProgramThatOpensIt) {
    ReplaceFile(Path(u"a.html"_s), "a");
    EXPECT_TRUE(QFile::permissions(Path(u"a.html"_s)) & QFile::ReadOther);
}

TEST_F(WholeFile, ANewOneStandsBesideTheOlderOnes) {
    const QString folder = Path(u"Tisky"_s);
    EXPECT_EQ(WriteNewFile(folder, u"Katalog"_s, u"docx"_s, "1"), folder + u"/Katalog.docx"_s);
    EXPECT_EQ(WriteNewFile(folder, u"Katalog"_s, u"docx"_s, "2"), folder + u"/Katalog (2).docx"_s);
    EXPECT_EQ(Bytes(u"Tisky/Katalog.docx"_s), "1");
    EXPECT_EQ(Bytes(u"Tisky/Katalog (2).docx"_s), "2");
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST_F(WholeFile, FailuresNameTheFileAndTheCauseInCzech) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(u"a.html"_s));
    EXPECT_EQ(Failure([&] { ReplaceFile(Path(u"a.html"_s), "x"); }),
              u"Soubor nelze zapsat „%1“: tento název má složka"_s.arg(Shown(u"a.html"_s)));
    EXPECT_EQ(Failure([&] { ReplaceFile(Path(u"chybí/b.html"_s), "x"); }),
              u"Soubor nelze zapsat „%1“: soubor nebo jeho složka neexistuje"_s.arg(
                  Shown(u"chybí/b.html"_s)));
    ReplaceFile(Path(u"Tisky"_s), "a file in the folder's place");
    const QString failure =
        Failure([&] { (void)WriteNewFile(Path(u"Tisky"_s), u"K"_s, u"docx"_s, "x"); });
    EXPECT_TRUE(failure.startsWith(u"Soubor nelze zapsat „%1“: "_s.arg(Shown(u"Tisky/K.docx"_s))))
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
    ReplaceFile(Path(u"a.html"_s), "older");
    const QByteArray large(1 << 20, 'x');
    QString replacing;
    QString adding;
    {
        const NarrowDisk narrow(1 << 16);
        replacing = Failure([&] { ReplaceFile(Path(u"a.html"_s), large); });
        adding = Failure([&] { (void)WriteNewFile(folder_.path(), u"b"_s, u"docx"_s, large); });
    }
    EXPECT_TRUE(replacing.endsWith(u"a.html“: soubor je větší, než disk nebo systém dovoluje"_s))
        << replacing.toStdString();
    EXPECT_TRUE(adding.contains(u"b.docx“: "_s)) << adding.toStdString();
    EXPECT_EQ(Bytes(u"a.html"_s), "older");
    EXPECT_EQ(Names(), QStringList(u"a.html"_s));
}

TEST_F(WholeFile, AShortTextThatFindsNoRoomLeavesNothingElseEither) {
    ReplaceFile(Path(u"a.ini"_s), "older");
    QString replacing;
    {
        const NarrowDisk narrow(10);
        replacing = Failure([&] { ReplaceFile(Path(u"a.ini"_s), QByteArray(100, 'x')); });
    }
    EXPECT_TRUE(replacing.contains(u"a.ini“: "_s)) << replacing.toStdString();
    EXPECT_EQ(Bytes(u"a.ini"_s), "older");
    EXPECT_EQ(Names(), QStringList(u"a.ini"_s));
}
#endif

} // namespace
} // namespace lorvo
