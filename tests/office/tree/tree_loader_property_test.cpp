// The tree is read in a few passes over whole tables. What it must look like is told by the plain
// walk: one query for the breeds of each ring, one for the dogs of each breed.

#include "office/tree/tree_loader.h"

#include "app/constant_tables.h"
#include "office/tree/tree_lines.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "support/temp_database.h"

#include <gtest/gtest.h>
#include <random>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The tree's lines by the plain walk, up to the dog at which it fails.
class PlainWalk {
  public:
    explicit PlainWalk(const ViewPreferences& look) : look_(look) {}

    QStringList Lines() {
        lines_ = {test::TreeLine(0, u"K0"_s, u"Nezařazeno v kruhu"_s)};
        failed_ = !Breeds("ID_Kruhu = 0 AND Pouzivat = true", false) || !Rings();
        return lines_;
    }
    bool Failed() const { return failed_; }

  private:
    bool Rings() {
        RecordSet& rings = TheDataModule().rsKruhy;
        for (rings.Open("SELECT * FROM Kruhy ORDER BY Nazev"); !rings.Eof(); rings.MoveNext()) {
            const int id = rings.Field("ID").ToInt();
            lines_ += test::TreeLine(0, u'K' + QString::number(id), rings.Field("Nazev").ToText());
            if (!Breeds("ID_Kruhu = " + Number(id), true))
                return false;
        }
        return true;
    }

    bool Breeds(const std::string& condition, bool inRing) {
        RecordSet& breeds = TheDataModule().rsPlemena;
        for (breeds.Open("SELECT * FROM Plemena WHERE " + condition + " ORDER BY Nazev");
             !breeds.Eof(); breeds.MoveNext()) {
            QString text = breeds.Field("Nazev").ToText();
            if (inRing && text.isEmpty())
                text = breeds.Field("NazevOrig").ToText();
            const int id = breeds.Field("ID").ToInt();
            lines_ += test::TreeLine(1, u'R' + QString::number(id), text);
            if (!Dogs(id, inRing))
                return false;
        }
        return true;
    }

    bool Dogs(int breed, bool inRing) {
        RecordSet& dogs = TheDataModule().rsPsi;
        dogs.Open("SELECT PrvniPes, PrvniUzaverka, ID, Jmeno, Cislo, PlemenoID, PohlaviPes, Trida "
                  "FROM Psi WHERE Psi!PlemenoID = " +
                  Number(breed) + " ORDER BY PohlaviPes ASC, Trida ASC, Jmeno ASC");
        const int classes = !look_.showClasses ? 0 : breed == kSpecialBreedID ? 4 : 8;
        std::vector<QStringList> groups(static_cast<std::size_t>(classes) + 1);
        bool complete = true;
        for (; !dogs.Eof() && complete; dogs.MoveNext()) {
            const int trida = dogs.Field("Trida").ToInt();
            complete = classes == 0 || (trida >= 1 && trida <= classes);
            if (complete)
                groups[classes ? static_cast<std::size_t>(trida) : 0] += DogLine(dogs, inRing);
        }
        lines_ += groups[0];
        for (std::size_t i = 1; i < groups.size(); ++i) {
            lines_ += u"    TR%1|%2 "_s.arg(breed).arg(i);
            lines_ += groups[i];
        }
        return complete;
    }

    QString DogLine(const RecordSet& dog, bool inRing) const {
        QString text = dog.Field("Jmeno").ToText();
        if (look_.dogDetailInTree && !inRing) {
            text += dog.Field("PrvniUzaverka").ToBool() ? u" (I. uzávěrka"_s : u" (II. uzávěrka"_s;
            text += dog.Field("PrvniPes").ToBool() ? u", 1.pes majitele)"_s : u")"_s;
        }
        if (dog.Field("Cislo").ToInt() > 0)
            text = dog.Field("Cislo").ToText() + u' ' + text;
        return test::TreeLine(look_.showClasses ? 3 : 2, u'P' + dog.Field("ID").ToText(), text);
    }

    ViewPreferences look_;
    QStringList lines_;
    bool failed_ = false;
};

class RandomShow {
  public:
    explicit RandomShow(unsigned seed) : random_(seed) {}

    /// Statements that fill the database afresh; one dog in `faulty` has a class that is none.
    std::string Statements(int faulty) {
        std::string sql = "BEGIN; DELETE FROM Kruhy; DELETE FROM Plemena; DELETE FROM Psi;";
        for (int ring = 1; ring <= 4; ++ring)
            sql += "INSERT INTO Kruhy (ID, Nazev) VALUES (" + Number(ring) + "," + Name() + ");";
        for (const int breed : kBreeds)
            sql += "INSERT INTO Plemena (ID, Nazev, NazevOrig, ID_Kruhu, Pouzivat) VALUES (" +
                   Number(breed) + "," + Name() + "," + Name() + "," +
                   OneOf({"0", "0", "1", "2", "3", "4", "9", "NULL"}) + "," +
                   OneOf({"-1", "-1", "0", "NULL"}) + ");";
        for (int dog = 1; dog <= 150; ++dog)
            sql += Dog(dog, faulty);
        return sql + "COMMIT;";
    }

  private:
    static constexpr int kBreeds[] = {3, 5, 8, 13, 21, 34, 55, kSpecialBreedID};

    std::string OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }
    std::size_t Below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }
    std::string Name() {
        return OneOf({"'Alík'", "'alík'", "'Álík'", "'Cvrk'", "'Čert'", "'Chvat'", "'Hugo'",
                      "'Ida'", "'Řek'", "'Rek'", "'Žofka'", "''", "NULL", "'D''Artagnan'"});
    }
    std::string Dog(int id, int faulty) {
        const int breed = kBreeds[Below(std::size(kBreeds))];
        const std::size_t classes = breed == kSpecialBreedID ? 4 : 8;
        const bool fault = faulty > 0 && Below(static_cast<std::size_t>(faulty)) == 0;
        const std::string trida =
            fault ? OneOf({"0", "NULL", "9", "-1"}) : std::to_string(1 + Below(classes));
        return "INSERT INTO Psi (ID, Jmeno, PlemenoID, Cislo, Trida, PohlaviPes, PrvniUzaverka, "
               "PrvniPes) VALUES (" +
               Number(id) + "," + Name() + "," + Number(breed) + "," +
               OneOf({"0", "NULL", "7", "105"}) + "," + trida + "," + OneOf({"-1", "0", "NULL"}) +
               "," + OneOf({"-1", "0"}) + "," + OneOf({"-1", "0"}) + ");";
    }

    std::mt19937 random_;
};

/// Captions of classes are not this test's matter.
QStringList WithoutClassCaptions(QStringList lines) {
    for (QString& line : lines)
        if (line.startsWith(u"    TR"))
            line.truncate(line.indexOf(u' ', 4) + 1);
    return lines;
}

TEST(TreeLoaderProperty, EqualsThePlainWalkOnRandomShows) {
    TempDatabase database;
    int failures = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        database.Execute(RandomShow(seed).Statements(seed % 4 == 0 ? 60 : 0));
        ViewPreferences look;
        look.showClasses = seed % 2 == 0;
        look.dogDetailInTree = seed % 3 == 0;

        PlainWalk walk(look);
        const QStringList expected = walk.Lines();
        TreeNodes nodes;
        if (walk.Failed()) {
            ++failures;
            EXPECT_THROW(LoadTree(nodes, look), Error);
        } else {
            LoadTree(nodes, look);
        }
        EXPECT_EQ(WithoutClassCaptions(test::TreeLines(nodes)), expected);
    }
    EXPECT_GT(failures, 3);
}

} // namespace
} // namespace lorvo
