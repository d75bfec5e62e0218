#include "store/data_module.h"
#include "store/psi.h"
#include "support/print_qt.h"
#include "support/temp_database.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class MakeShow : public ::testing::Test {
  protected:
    MakeShow() { from_ = TempDatabase::CopyTo(folder_.path(), TempDatabase::Content::Delivered); }
    int Run(const QStringList& arguments) {
        return QProcess::execute(QString::fromUtf8(LORVO_MAKE_SHOW), arguments);
    }
    QStringList Files() { return QDir(folder_.path()).entryList(QDir::Files); }

    QTemporaryDir folder_;
    QString from_;
    QString out_ = folder_.filePath(u"show.mdb"_s);
};

TEST_F(MakeShow, MakesAFileAndLeavesNothingElse) {
    EXPECT_EQ(Run({u"--from"_s, from_, u"--out"_s, out_, u"--seed"_s, u"5"_s}), 0);
    EXPECT_EQ(Files(), (QStringList{u"data.mdb"_s, u"show.mdb"_s}));
    TheDataModule().Conn1.Open(out_);
    EXPECT_EQ(CountDogs(), 400);
    TheDataModule().Conn1.Close();
}

TEST_F(MakeShow, NeverOverwritesAFile) {
    QFile file(out_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    EXPECT_EQ(Run({u"--from"_s, from_, u"--out"_s, out_}), 1);
    EXPECT_EQ(QFile(out_).size(), 4);
    EXPECT_EQ(Files(), (QStringList{u"data.mdb"_s, u"show.mdb"_s}));
}

TEST_F(MakeShow, RefusesOptionsThatItDoesNotKnow) {
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(Run({u"--out"_s}), 2);
    EXPECT_EQ(Run({u"--size"_s, u"galaxy"_s, u"--out"_s, out_}), 2);
    EXPECT_EQ(Run({u"--seed"_s, u"x"_s, u"--out"_s, out_}), 2);
    EXPECT_EQ(Run({u"--colour"_s, u"x"_s, u"--out"_s, out_}), 2);
    EXPECT_EQ(Files(), QStringList(u"data.mdb"_s));
}

} // namespace
} // namespace lorvo
