#pragma once
// A small show that entries can be taken into.

#include "app/module_values.h"
#include "office/exchange/entry_book.h"
#include "store/ostatni.h"
#include "store/routines_fixture.h"
#include "store/vystavy.h"
#include "support/recording_platform.h"

namespace lorvo::test {

inline constexpr int kBoxerID = 1;

class EntriesTest : public RoutinesTest {
  protected:
    EntriesTest() {
        Module() = ModuleValues();
        Module().MainCurrency = Text("Kč");
        Add("Plemena", {{"Nazev", Text("Německý boxer")},
                        {"NazevOrig", Text("Deutscher Boxer")},
                        {"Pouzivat", true}});
        Add("Plemena", {{"Nazev", Text("Čivava")}, {"NazevOrig", Text("Chihuahueño")}});
        show = Add("Vystavy", {{"Nazev", Text("Hlavní výstava")},
                               {"PoplatkyIClass5D1", Currency::FromUnits(600)},
                               {"PoplatkyIClass5D2", Currency::FromUnits(500)},
                               {"PoplatkyIIClass5D1", Currency::FromUnits(750)},
                               {"PoplatkyIIClass5D2", Currency::FromUnits(650)}});
        Add("Meny", {{"Nazev", Text("Koruna")},
                     {"Zkratka", Text("Kč")},
                     {"Kurs", Currency::FromUnits(1)},
                     {"Hlavni", true}});
        Add("Souteze", {{"Nazev", Text("Dítě a pes")}, {"Cena", Currency::FromUnits(50)}});
        SetClosingsOfFirstShow(DateValue::FromCalendar(2027, 3, 31),
                               DateValue::FromCalendar(2027, 4, 20));
        SetShowDate(DateValue::FromCalendar(2027, 5, 14));
    }

    /// Judges a row that is right as it stands but for the cells given by their headings.
    EntryLine Judge(const std::vector<std::pair<QString, QString>>& changes) {
        QStringList headings{Text("Jméno psa"),      Text("Plemeno"), Text("Pohlaví"),
                             Text("Datum narození"), Text("Třída"),   Text("Majitel"),
                             Text("Město"),          Text("PSČ")};
        QStringList row{Text("Alík"),     Text("Německý boxer"), Text("pes"),  Text("5.6.2024"),
                        Text("otevřená"), Text("Eva Nová"),      Text("Brno"), Text("602 00")};
        for (const auto& [heading, cell] : changes) {
            const auto at = headings.indexOf(heading);
            if (at >= 0)
                row[at] = cell;
            else {
                headings << heading;
                row << cell;
            }
        }
        return Book().Judge(++lines_, row, ColumnsByHeading(headings));
    }
    EntryBook& Book() {
        if (!book_)
            book_ = std::make_unique<EntryBook>(show, today);
        return *book_;
    }

    int show = 0;
    DateValue today = DateValue::FromCalendar(2027, 3, 1);

  private:
    RecordingPlatform platform_;
    std::unique_ptr<EntryBook> book_;
    int lines_ = 0;
};

} // namespace lorvo::test
