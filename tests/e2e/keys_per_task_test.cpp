// What each task of the desk costs in keys, on the real windows and without a click. Letters of
// texts aren't counted: they are the same in every program. The limits of the first three tasks
// are what they cost in keys and clicks together when they were first counted, those of the others
// what they cost now; docs/keyboard.md has the table.

#include "e2e/desk_fixture.h"
#include "store/kruhy.h"
#include "store/majitele.h"
#include "store/psi.h"
#include "store/souteze.h"
#include "store/uhrady.h"
#include "support/generated_show.h"

#include <algorithm>
#include <cstdio>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class KeysPerTask : public DeskTest {
  protected:
    KeysPerTask() : DeskTest(DateValue::FromCalendar(2027, 3, 1)) {
        PutGeneratedShow(database);
        Start();
        SelectNode(u"R%1"_s.arg(kSpecialBreedID));
    }

    /// What the clerk was at before.
    void SelectNode(const QString& key) {
        window->SelectNode(key);
        window->ShowNodeInfo(key);
        QCoreApplication::processEvents();
    }
    /// Does what the clerk has been told.
    void ExpectAtMost(int keys, const char* task) {
        clerk.Work();
        std::printf("%-40s %d\n", task, clerk.Keys());
        EXPECT_LE(clerk.Keys(), keys) << task;
        EXPECT_EQ(InFront(), u"fm_main"_s) << task;
    }
    void TellToEnterTheDog(const QString& name) {
        clerk.Alt(u"ADD"_s).Press(Qt::Key_S);
        clerk.Type(name).Alt(u"dtBorn"_s).Type(u"3.2.2024"_s);
        clerk.TabTo(u"optClasses(3)"_s).Press(Qt::Key_Space);
    }
    void TellToTickTheFirstShow() {
        clerk.Alt(u"fraVystavy.header"_s).Press(Qt::Key_Home).Press(Qt::Key_Space);
    }
    static Psi NewestDog() {
        std::vector<Psi> dogs = DogsByBreed();
        return *std::ranges::max_element(dogs, {}, &Psi::ID);
    }
    Clerk clerk;
};

TEST_F(KeysPerTask, ADogOfANewOwner) {
    TellToEnterTheDog(u"Alík"_s);
    clerk.TabTo(u"icOtec"_s).TabTo(u"icMatka"_s);
    clerk.TabTo(u"txtbox(1)"_s).Type(u"Qido Malý"_s).TabTo(u"txtbox(2)"_s).Type(u"ČLP/1/24"_s);
    clerk.Alt(u"cmdAddName"_s).Type(u"Jana Malá"_s).TabTo(u"txtbox(8)"_s).Type(u"Lesní 1"_s);
    clerk.TabTo(u"txtbox(9)"_s).Type(u"28002"_s).TabTo(u"txtbox(10)"_s).Type(u"Kolín"_s);
    clerk.TabTo(u"txtbox(6)"_s).Type(u"777123456"_s);
    clerk.TabTo(u"txtbox(11)"_s).Type(u"jana@example.cz"_s).Press(Qt::Key_Return);
    TellToTickTheFirstShow();
    ExpectAtMost(22, "dog with a new owner");
    EXPECT_EQ(NewestDog().Jmeno, u"Alík"_s);
    EXPECT_EQ(OwnerByID(NewestDog().MajitelID)->Jmeno, u"Jana Malá"_s);
}

TEST_F(KeysPerTask, ADogOfAKnownOwner) {
    TellToEnterTheDog(u"Bára"_s);
    clerk.TabTo(u"cmbOwners"_s).Type(u"Ing. Boh"_s).Press(Qt::Key_Return);
    TellToTickTheFirstShow();
    ExpectAtMost(15, "dog with a known owner");
    EXPECT_EQ(NewestDog().MajitelID, kWordyOwnerID);
}

TEST_F(KeysPerTask, APaymentInCash) {
    SelectNode(u"P%1"_s.arg(kWordyDogID));
    clerk.Alt(u"lblNovaPlatba"_s).Type(u"650"_s).TabTo(u"cmbZpusob"_s).Type(u"h"_s);
    clerk.Press(Qt::Key_Return);
    ExpectAtMost(4, "payment in cash");
}

TEST_F(KeysPerTask, AnOwnerWhoHasMoved) {
    SelectNode(u"P%1"_s.arg(kWordyDogID));
    clerk.Alt(u"fraMajitel.header"_s).TabTo(u"picEditMajitele"_s).Press(Qt::Key_Space);
    clerk.TabTo(u"txtItem(2)"_s).Type(u"Brno"_s).Press(Qt::Key_Return);
    ExpectAtMost(12, "changed owner");
    EXPECT_EQ(OwnerByID(kWordyOwnerID)->Mesto, u"Brno"_s);
}

TEST_F(KeysPerTask, ARingWithABreed) {
    clerk.Alt(u"ADD"_s)
        .Press(Qt::Key_K)
        .Await(u"tvwMain.editor"_s)
        .Type(u"Kruh Z"_s)
        .Press(Qt::Key_Return)
        .Work();
    clerk.Alt(u"TABLES"_s).Choose(u"Seznam plemen"_s).Press(Qt::Key_Home).Press(Qt::Key_Space);
    clerk.Press(Qt::Key_F10, Qt::ShiftModifier).Choose(u"Zařadit do kruhu"_s);
    clerk.Choose(u"Kruh Z"_s).Press(Qt::Key_Escape);
    ExpectAtMost(24, "ring with a breed");
}

TEST_F(KeysPerTask, ACompetition) {
    clerk.Alt(u"TABLES"_s).Choose(u"Soutěže"_s).Press(Qt::Key_F10).Press(Qt::Key_Return);
    clerk.TabTo(u"txtNazev(0)"_s).Type(u"Nejmladší vystavovatel"_s);
    clerk.Press(Qt::Key_Tab).Type(u"80"_s).Press(Qt::Key_Return).Press(Qt::Key_Escape);
    ExpectAtMost(14, "competition");
    EXPECT_TRUE(std::ranges::any_of(Competitions(), [](const Souteze& competition) {
        return competition.Nazev == u"Nejmladší vystavovatel";
    }));
}

TEST_F(KeysPerTask, Numbering) {
    clerk.Alt(u"SETTINGS"_s).Alt(u"cmdRemoveNumbers"_s).Press(Qt::Key_Return);
    clerk.Alt(u"cmdGenerateNumbers"_s).Press(Qt::Key_Return).Alt(u"cmdOK"_s);
    ExpectAtMost(6, "numbering anew");
    EXPECT_GT(NewestDog().Cislo.value_or(0), 0);
}

TEST_F(KeysPerTask, EachPaper) {
    int papers = 0;
    for (const char16_t* paper :
         {u"Katalog", u"Seznam psů", u"Diplomy", u"Přehled plemen", u"Seznam vystavovatelů",
          u"Posudkové listy", u"Pozvánky", u"Přehled plateb"}) {
        clerk = Clerk();
        clerk.Alt(u"EXPORT"_s).Choose(QString::fromUtf16(paper)).Press(Qt::Key_Return);
        clerk.Press(Qt::Key_Escape);
        if (QString::fromUtf16(paper) == u"Přehled plateb")
            clerk.Await(u"cmdYes"_s).Press(Qt::Key_Return); // whether they count as printed
        ExpectAtMost(13, QString::fromUtf16(paper).toUtf8().constData());
        EXPECT_EQ(recording.openedFiles.size(), ++papers) << papers;
    }
}

} // namespace
} // namespace lorvo::test
