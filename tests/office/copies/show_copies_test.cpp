// Copies of a database: made, thinned, compared, put back; and what comes of damage.

#include "office/copies/show_copies.h"

#include "office/copies/background_copy.h"
#include "platform/values/errors.h"
#include "store/majitele.h"
#include "store/routines_fixture.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class ShowCopiesTest : public ::testing::Test {
  protected:
    QString Folder() const { return database.Folder(); }
    QString Copy() { return MakeCopy(Folder(), now = now.PlusDays(1)); }
    static void AddOwner(const char* name) {
        Majitele owner;
        owner.Jmeno = QString::fromUtf8(name);
        InsertOwner(owner);
    }
    QStringList Files() const {
        return QDir(CopiesFolder(Folder())).entryList(QDir::Files, QDir::Name);
    }
    /// Overwrites the middle of a file.
    static void Damage(const QString& path) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.seek(4096);
        file.write(QByteArray(static_cast<qsizetype>(file.size() - 4096), 'x'));
    }

    TempDatabase database;
    DateValue now = DateValue::FromCalendar(2027, 5, 14).WithSecondOfDay(8 * 3600);
};

TEST_F(ShowCopiesTest, ACopyHoldsTheLatestEditsAndStandsAlone) {
    AddOwner("Eva");
    const QString copy = Copy();
    EXPECT_EQ(Files(), QStringList{u"data 2027-05-15 08.00.00.mdb"_s});
    EXPECT_EQ(FiguresOfDatabase(copy).owners, 1);
    EXPECT_NO_THROW(RequireWholeDatabase(copy));
}

TEST_F(ShowCopiesTest, AnUnchangedDatabaseIsNotCopiedTwice) {
    AddOwner("Eva");
    const QString first = Copy();
    EXPECT_EQ(Copy(), first);
    EXPECT_EQ(Files().size(), 1);
    AddOwner("Jan");
    EXPECT_NE(Copy(), first);
}

TEST_F(ShowCopiesTest, TheRestOfACopyThatWasKilledIsTakenAway) {
    AddOwner("Eva");
    QDir().mkpath(CopiesFolder(Folder()));
    QFile rest(CopiesFolder(Folder()) + u"/rozpracovaná kopie.tmp"_s);
    ASSERT_TRUE(rest.open(QIODevice::WriteOnly));
    rest.write("half");
    rest.close();
    Copy();
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(ShowCopiesTest, ComparisonCountsWhatCameWentAndChanged) {
    AddOwner("Eva");
    AddOwner("Jan");
    const QString copy = Copy();
    AddOwner("Ota");
    DeleteOwner(1);
    Majitele jan = *OwnerByID(2);
    jan.Mesto = u"Brno"_s;
    UpdateOwner(jan);
    EXPECT_EQ(CompareDatabases(copy, DatabasePath(Folder()))[1],
              u"Vystavovatelé: přibylo 1, ubylo 1, změnilo se 1."_s);
}

TEST_F(ShowCopiesTest, PuttingBackCopiesThePresentStateFirst) {
    AddOwner("Eva");
    const QString copy = Copy();
    AddOwner("Jan");
    TheDataModule().Conn1.Close();
    PutCopyBack(Folder(), copy, now.PlusDays(2));
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(Folder())).owners, 1);
    EXPECT_EQ(FiguresOfDatabase(ListCopies(Folder(), true).front().path).owners, 2);
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files), QStringList{u"data.mdb"_s});
}

TEST_F(ShowCopiesTest, TheOldestCopyIsPutBackThoughAgeLetsItGo) {
    QString oldest;
    for (int i = 0; i < 10; ++i) {
        AddOwner("Eva");
        const QString copy = MakeCopy(Folder(), now.WithSecondOfDay(i));
        oldest = oldest.isEmpty() ? copy : oldest;
    }
    AddOwner("Eva");
    TheDataModule().Conn1.Close();
    PutCopyBack(Folder(), oldest, now.WithSecondOfDay(100));
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(Folder())).owners, 1);
}

TEST_F(ShowCopiesTest, ADamagedDatabaseGoesAsideWhenACopyIsPutBack) {
    AddOwner("Eva");
    const QString copy = Copy();
    TheDataModule().Conn1.Close();
    Damage(DatabasePath(Folder()));
    PutCopyBack(Folder(), copy, now);
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(Folder())).owners, 1);
    EXPECT_EQ(Files().filter(u"poškozená"_s).size(), 1);
}

TEST_F(ShowCopiesTest, ACopyIsPutBackInThePlaceOfADatabaseThatIsGoneOrEmpty) {
    AddOwner("Eva");
    const QString copy = Copy();
    TheDataModule().Conn1.Close();
    ASSERT_TRUE(QFile::remove(DatabasePath(Folder())));
    PutCopyBack(Folder(), copy, now);
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(Folder())).owners, 1);
    EXPECT_EQ(Files().size(), 1);
    ASSERT_TRUE(QFile::resize(DatabasePath(Folder()), 0));
    PutCopyBack(Folder(), copy, now);
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(Folder())).owners, 1);
    EXPECT_EQ(Files().filter(u"poškozená"_s).size(), 1);
}

TEST_F(ShowCopiesTest, ADamagedCopyIsRefusedAndNothingChanges) {
    AddOwner("Eva");
    const QString copy = Copy();
    Damage(copy);
    AddOwner("Jan");
    TheDataModule().Conn1.Close();
    EXPECT_THROW(PutCopyBack(Folder(), copy, now), StoreError);
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(Folder())).owners, 2);
    EXPECT_FALSE(ListCopies(Folder(), true).front().fault.isEmpty());
    EXPECT_FALSE(NewestGoodCopy(Folder(), now));
}

TEST_F(ShowCopiesTest, APutBackThatCanNotCopyThePresentStateLeavesEverythingAsItWas) {
    AddOwner("Eva");
    const QString kept = Folder() + u"/kopie.mdb"_s;
    ASSERT_TRUE(QFile::copy(Copy(), kept));
    ASSERT_TRUE(QDir(CopiesFolder(Folder())).removeRecursively());
    QFile inTheWay(CopiesFolder(Folder()));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    AddOwner("Jan");
    TheDataModule().Conn1.Close();
    EXPECT_THROW(PutCopyBack(Folder(), kept, now), Error);
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(Folder())).owners, 2);
    EXPECT_EQ(QDir(Folder()).entryList({u"data.mdb*"_s}, QDir::Files), QStringList{u"data.mdb"_s});
}

TEST_F(ShowCopiesTest, DamageNamesTheNewestGoodCopy) {
    AddOwner("Eva");
    Copy();
    TheDataModule().Conn1.Close();
    Damage(DatabasePath(Folder()));
    const CopyOutcome outcome = TryCopy(Folder(), now.PlusDays(3));
    EXPECT_TRUE(outcome.isDamaged) << outcome.failure.toStdString();
    EXPECT_EQ(outcome.newestGood, u"data 2027-05-15 08.00.00.mdb"_s);
    EXPECT_EQ(outcome.daysOld, 3);
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(ShowCopiesTest, ADamagedCopyIsInNobodysWay) {
    AddOwner("Eva");
    const QString older = Copy();
    Damage(older);
    AddOwner("Jan");
    const QString newer = Copy();
    EXPECT_EQ(Files().size(), 2);
    QFile::remove(newer);
    const std::vector<ShowCopy> copies = ListCopies(Folder(), false);
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_FALSE(copies.front().fault.isEmpty());
}

TEST_F(ShowCopiesTest, DamageFoundAtTheStartNamesTheNewestGoodCopyToo) {
    AddOwner("Eva");
    Copy();
    const CopyOutcome outcome = CopyAfterDamage(CorruptStoreError("poškozeno."), Folder(), now);
    EXPECT_EQ(DamageText(outcome), u"poškozeno. Nejnovější dobrá kopie je Zálohy/data 2027-05-15 "
                                   "08.00.00.mdb; vrátíte ji ve Správci dat."_s);
}

TEST_F(ShowCopiesTest, AClockSetBackMakesNoOldCopyTheNewest) {
    AddOwner("Eva");
    Copy();
    AddOwner("Jan");
    now = now.PlusDays(-400);
    MakeCopy(Folder(), now);
    EXPECT_EQ(Files().size(), 2);
    TheDataModule().Conn1.Close();
    Damage(DatabasePath(Folder()));
    const CopyOutcome outcome = TryCopy(Folder(), now.PlusDays(1));
    EXPECT_EQ(outcome.newestGood, u"data 2026-04-10 08.00.00.mdb"_s);
    EXPECT_EQ(outcome.daysOld, 1);
    const CopyOutcome earlier = TryCopy(Folder(), now.PlusDays(-1));
    EXPECT_EQ(earlier.daysOld, 0);
}

TEST_F(ShowCopiesTest, NobodyWaitsForACopyInTheBackground) {
    AddOwner("Eva");
    BackgroundCopy copy;
    std::vector<CopyOutcome> outcomes;
    QObject::connect(&copy, &BackgroundCopy::Ended, &copy,
                     [&outcomes](const CopyOutcome& outcome) { outcomes.push_back(outcome); });
    copy.Begin(Folder(), now);
    AddOwner("Jan"); // while the copy may be under way
    QTRY_COMPARE(static_cast<int>(outcomes.size()), 1);
    EXPECT_EQ(outcomes.front().failure, QString());
    EXPECT_EQ(Files().size(), 1);
}

} // namespace
} // namespace lorvo::test
