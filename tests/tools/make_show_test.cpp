#include "store/data_module.h"
#include "store/psi.h"
#include "support/print_qt.h"
#include "support/temp_database.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

class MakeShow : public ::testing::Test {
  protected:
    MakeShow() { from_ = TempDatabase::CopyTo(folder_.path(), TempDatabase::Content::Delivered); }
    int Run(const QStringList& arguments) {
        return QProcess::execute(QStringLiteral(LORVO_MAKE_SHOW), arguments);
    }
    QStringList Files() { return QDir(folder_.path()).entryList(QDir::Files); }

    QTemporaryDir folder_;
    QString from_;
    QString out_ = folder_.filePath(u"show.mdb"_qs);
};

TEST_F(MakeShow, MakesAFileAndLeavesNothingElse) {
    EXPECT_EQ(Run({u"--from"_qs, from_, u"--out"_qs, out_, u"--seed"_qs, u"5"_qs}), 0);
    EXPECT_EQ(Files(), (QStringList{u"data.mdb"_qs, u"show.mdb"_qs}));
    TheDataModule().Conn1.Open(out_);
    EXPECT_EQ(CountDogs(), 400);
    TheDataModule().Conn1.Close();
}

TEST_F(MakeShow, NeverOverwritesAFile) {
    QFile file(out_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    EXPECT_EQ(Run({u"--from"_qs, from_, u"--out"_qs, out_}), 1);
    EXPECT_EQ(QFile(out_).size(), 4);
    EXPECT_EQ(Files(), (QStringList{u"data.mdb"_qs, u"show.mdb"_qs}));
}

TEST_F(MakeShow, RefusesOptionsThatItDoesNotKnow) {
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(Run({u"--out"_qs}), 2);
    EXPECT_EQ(Run({u"--size"_qs, u"galaxy"_qs, u"--out"_qs, out_}), 2);
    EXPECT_EQ(Run({u"--seed"_qs, u"x"_qs, u"--out"_qs, out_}), 2);
    EXPECT_EQ(Run({u"--colour"_qs, u"x"_qs, u"--out"_qs, out_}), 2);
    EXPECT_EQ(Files(), QStringList(u"data.mdb"_qs));
}

} // namespace
} // namespace lorvo
