// What the office thinks of an entry that came as a row of a table.

#include "office/exchange/entry_book.h"

#include "office/exchange/entries_fixture.h"

namespace lorvo::test {
namespace {

class EntryBookTest : public EntriesTest {
  protected:
    using Changes = std::vector<std::pair<const char*, const char*>>;

    EntryLine Judged(const Changes& changes) {
        std::vector<std::pair<QString, QString>> texts;
        for (const auto& [heading, cell] : changes)
            texts.emplace_back(Text(heading), Text(cell));
        return Judge(texts);
    }
    /// "new", "known: why", "look: why" (may be taken) or "no: why".
    std::string Verdict(const Changes& changes) {
        const EntryLine line = Judged(changes);
        const std::string why = line.reasons.join(u' ').toStdString();
        if (line.state == LineState::New)
            return "new";
        if (line.state == LineState::Known)
            return "known: " + why;
        return (line.canBeTaken ? "look: " : "no: ") + why;
    }
};

TEST_F(EntryBookTest, AWholeRowIsNewAndReadAsTheDogEditorWouldStoreIt) {
    const EntryLine line =
        Judged({{"Otec", "Rex"}, {"Soutěže", "dite a pes"}, {"Uhrazeno", "1 234,50"}});
    EXPECT_EQ(line.state, LineState::New) << line.reasons.join(u' ').toStdString();
    const Psi& dog = line.entry.dog;
    EXPECT_EQ(dog.Jmeno, Text("Alík"));
    EXPECT_EQ(dog.PlemenoID, kBoxerID);
    EXPECT_TRUE(dog.PohlaviPes);
    EXPECT_EQ(dog.DatumNar, DateValue::FromCalendar(2024, 6, 5));
    EXPECT_EQ(dog.Trida, 5);
    EXPECT_EQ(dog.Otec, Text("Rex"));
    EXPECT_TRUE(dog.PrvniUzaverka);
    EXPECT_EQ(line.entry.owner.PSC, 60200);
    EXPECT_EQ(line.entry.shows, Numbers{show});
    EXPECT_EQ(line.entry.competitions, Numbers{1});
    EXPECT_EQ(line.entry.paid, Currency::FromText("1234,5"));
}

TEST_F(EntryBookTest, BreedsAreFoundByEitherNameWithoutAccents) {
    EXPECT_EQ(Verdict({{"Plemeno", "nemecky BOXER"}}), "new");
    EXPECT_EQ(Verdict({{"Plemeno", "deutscher boxer"}, {"Jméno psa", "B"}}), "new");
    EXPECT_EQ(Verdict({{"Plemeno", "Jezevčík"}}), "no: Plemeno „Jezevčík“ v seznamu plemen není.");
    EXPECT_EQ(Verdict({{"Plemeno", "chihuahueno"}}),
              "no: Plemeno „chihuahueno“ se na výstavě neposuzuje.");
}

TEST_F(EntryBookTest, ANameThatTwoJudgedBreedsBearIsNotGuessed) {
    Add("Plemena", {{"Nazev", Text("Německý Boxer")}, {"Pouzivat", true}});
    EXPECT_EQ(Verdict({}), "no: Název plemene „Německý boxer“ má v seznamu více plemen.");
}

TEST_F(EntryBookTest, TheClassMustBeOpenAtTheDogsAge) {
    EXPECT_EQ(Verdict({{"Třída", "7"}}), "new");
    EXPECT_EQ(Verdict({{"Třída", "Třída vítězů"}, {"Jméno psa", "B"}}), "new");
    EXPECT_EQ(Verdict({{"Třída", "veteránů"}}),
              "no: Třída „veteránů“ není pro psa ve věku 36 měsíců otevřená.");
    EXPECT_EQ(Verdict({{"Třída", "modrá"}}), "no: Třída „modrá“ u tohoto plemene není.");
}

TEST_F(EntryBookTest, WithoutADayOfTheShowNoClassCanBeTold) {
    ClearShowDate();
    EXPECT_EQ(Verdict({}), "no: Není nastaveno datum výstavy, takže třídu nelze ověřit.");
}

TEST_F(EntryBookTest, MissingAndUnreadableCellsAreNamed) {
    EXPECT_EQ(Verdict({{"Jméno psa", ""}}), "no: Jméno psa: chybí.");
    EXPECT_EQ(Verdict({{"Datum narození", "30.2.2024"}}),
              "no: Datum narození „30.2.2024“ není datum.");
    EXPECT_EQ(Verdict({{"Pohlaví", "kocour"}}), "no: Pohlaví „kocour“ není „pes“ ani „fena“.");
    EXPECT_EQ(Verdict({{"PSČ", "6020"}}), "no: PSČ „6020“ nemá pět číslic.");
    EXPECT_EQ(Verdict({{"Uhrazeno", "moc"}}), "no: Uhrazeno: „moc“ není částka.");
    EXPECT_EQ(Verdict({{"Uhrazeno", "-5"}}), "no: Uhrazeno: „-5“ není částka.");
    EXPECT_EQ(Verdict({{"Uhrazeno", "Kč"}}), "no: Uhrazeno: „Kč“ není částka.");
    EXPECT_EQ(Verdict({{"Výstava", "Jiná"}}), "no: Výstava „Jiná“ neexistuje.");
    EXPECT_EQ(Verdict({{"Soutěže", "Dítě a pes, Jiná"}}), "no: Soutěž „Jiná“ neexistuje.");
    EXPECT_EQ(Verdict({{"Město", "\xEF\xBF\xBD"}}),
              "no: Město: některá písmena nejdou přečíst, zkuste jiné kódování.");
    EXPECT_EQ(Verdict({{"Jméno psa", "123456789012345678901234567890123456789012345678901"}}),
              "no: Jméno psa: text je delší než 50 znaků.");
}

TEST_F(EntryBookTest, OnlyNameTownAndPostCodeTogetherMakeAnOwnerTheSame) {
    const int eva =
        Add("Majitele", {{"Jmeno", Text("Eva Nová")}, {"Mesto", Text("Brno")}, {"PSC", 60200}});
    EXPECT_EQ(Judged({}).entry.dog.MajitelID, eva);
    EXPECT_EQ(
        Judged({{"Majitel", "Eva"}, {"Příjmení", "Nová"}, {"Jméno psa", "D"}}).entry.dog.MajitelID,
        eva);
    EXPECT_EQ(Verdict({{"Město", "Zlín"}, {"Jméno psa", "B"}}),
              "look: Majitel podobného jména je v seznamu s jinou adresou (Eva Nová, Brno); "
              "převzetím vznikne další.");
    EXPECT_EQ(Verdict({{"Majitel", "eva nova"}, {"Jméno psa", "C"}}),
              "look: Majitel podobného jména je v seznamu s jinou adresou (Eva Nová, Brno); "
              "převzetím vznikne další.");
}

TEST_F(EntryBookTest, AnOwnerWhoIsThereTwiceIsNotGuessed) {
    for (int i = 0; i < 2; ++i)
        Add("Majitele", {{"Jmeno", Text("Eva Nová")}, {"Mesto", Text("Brno")}, {"PSC", 60200}});
    EXPECT_EQ(Verdict({}), "no: Majitel „Eva Nová“ je v seznamu vícekrát.");
}

TEST_F(EntryBookTest, ADogOfTheSameNameBreedAndBirthIsThereAlready) {
    Add("Psi", {{"Jmeno", Text("ALÍK")},
                {"PlemenoID", kBoxerID},
                {"DatumNar", DateValue::FromCalendar(2024, 6, 5)}});
    EXPECT_EQ(Verdict({}), "known: Pes je už přihlášen.");
    EXPECT_EQ(Verdict({{"Datum narození", "6.6.2024"}}), "new");
    EXPECT_EQ(Verdict({{"Datum narození", "06062024"}}), "known: Stejný pes je na řádku 2.");
}

TEST_F(EntryBookTest, TheClosingFollowsTheDayOnWhichTheEntryCame) {
    EXPECT_TRUE(
        Judged({{"Uzávěrka", "31.3.2027 23:59:10"}, {"Jméno psa", "A"}}).entry.dog.PrvniUzaverka);
    EXPECT_FALSE(
        Judged({{"Uzávěrka", "1. 4. 2027 0:01"}, {"Jméno psa", "B"}}).entry.dog.PrvniUzaverka);
    EXPECT_FALSE(Judged({{"Uzávěrka", "II"}, {"Jméno psa", "C"}}).entry.dog.PrvniUzaverka);
    EXPECT_TRUE(
        Judged({{"Uzávěrka", "První uzávěrka"}, {"Jméno psa", "D"}}).entry.dog.PrvniUzaverka);
    EXPECT_EQ(Verdict({{"Uzávěrka", "21.4.2027"}, {"Jméno psa", "E"}}),
              "look: Přihláška došla po druhé uzávěrce.");
    EXPECT_EQ(Verdict({{"Uzávěrka", "brzy"}, {"Jméno psa", "F"}}),
              "no: Uzávěrka „brzy“ není „I“, „II“ ani datum.");
}

TEST_F(EntryBookTest, DaysMayComeAsSpreadsheetsCountThem) {
    EXPECT_EQ(Judged({{"Datum narození", "45448"}}).entry.dog.DatumNar,
              DateValue::FromCalendar(2024, 6, 5));
    EXPECT_EQ(Judged({{"Datum narození", "45448.75"}}).entry.dog.DatumNar,
              DateValue::FromCalendar(2024, 6, 5));
    EXPECT_EQ(Verdict({{"Uzávěrka", "46498.5242592593"}, {"Jméno psa", "E"}}),
              "look: Přihláška došla po druhé uzávěrce.");
}

TEST_F(EntryBookTest, AmountsAreReadAsPeopleWriteThem) {
    for (const char* text : {"650 Kč", "650,-", "650.- kč", "650,– Kč", "650,00 CZK", "650"})
        EXPECT_EQ(Judged({{"Uhrazeno", text}, {"Jméno psa", text}}).entry.paid,
                  Currency::FromUnits(650))
            << text;
}

TEST_F(EntryBookTest, NoCompetitionAndTheWordsOfSpreadsheetsAreUnderstood) {
    const NewEntry entry = Judged({{"Soutěže", "žádná"}, {"První pes", "NEPRAVDA"}}).entry;
    EXPECT_TRUE(entry.competitions.empty());
    EXPECT_EQ(entry.firstDog, false);
}

TEST_F(EntryBookTest, AShowOrCompetitionNamedTwiceIsEnteredOnce) {
    const NewEntry entry = Judged({{"Výstava", "Hlavní výstava, hlavni vystava"},
                                   {"Soutěže", "Dítě a pes; Dítě a pes"}})
                               .entry;
    EXPECT_EQ(entry.shows.size(), 1u);
    EXPECT_EQ(entry.competitions.size(), 1u);
}

using namespace Qt::StringLiterals;

TEST(EntryFields, HeadingsAreFoundByUsualNames) {
    const ColumnChoice columns =
        ColumnsByHeading({u"E-MAIL"_s, u"breed"_s, u"Jméno"_s, u"Jmeno majitele"_s, u"?"_s});
    EXPECT_EQ(columns[static_cast<std::size_t>(EntryField::Email)], 0);
    EXPECT_EQ(columns[static_cast<std::size_t>(EntryField::Breed)], 1);
    EXPECT_EQ(columns[static_cast<std::size_t>(EntryField::DogName)], 2);
    EXPECT_EQ(columns[static_cast<std::size_t>(EntryField::OwnerName)], 3);
    EXPECT_EQ(columns[static_cast<std::size_t>(EntryField::Sex)], std::nullopt);
}

} // namespace
} // namespace lorvo::test
