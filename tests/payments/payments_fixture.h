#pragma once
// What the tests of payments share: three currencies, an owner with two dogs and one with a single
// dog, and what a clerk does with the windows.

#include "app/module_values.h"
#include "forms/form.h"
#include "forms/report_list.h"
#include "store/routines_fixture.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace lorvo::test {

class PaymentsTest : public RoutinesTest {
  protected:
    PaymentsTest() {
        Module() = ModuleValues();
        Module().MainCurrency = Text("Kč");
        platform.now = DateValue::FromCalendar(2005, 5, 14).WithSecondOfDay(8 * 3600 + 61);
        AddCurrency("Euro", "EUR", Currency::FromRaw(255'000));
        koruna = AddCurrency("Koruna", "Kč", Currency::FromUnits(1), true);
        AddCurrency("Zlotý", "PLN", Currency::FromRaw(62'345));
        jana = Add("Majitele",
                   {{"Jmeno", Text("Jana")}, {"Prijmeni", Text("Malá")}, {"Mesto", Text("Kolín")}});
        petr = Add("Majitele",
                   {{"Jmeno", Text("Petr")}, {"Prijmeni", Text("Čech")}, {"Mesto", Text("Zlín")}});
        rex = AddDog("Rex", jana);
        alik = AddDog("Alík", jana);
        brok = AddDog("Brok", petr);
        Module().CurrentDogID = rex;
    }
    ~PaymentsTest() override { Module() = ModuleValues(); }

    static int AddDog(const char* name, int owner) {
        return Add(
            "Psi",
            {{"Jmeno", Text(name)}, {"ChovnaStanice", Text("z Lesa")}, {"MajitelID", owner}});
    }
    /// A payment of a dog in cash; `more` comes on top of the fields.
    static int AddPayment(int dog, int amount, int currency, const Assignments& more = {}) {
        Assignments fields = {{"ID_Psa", dog},
                              {"Castka", Currency::FromUnits(amount)},
                              {"Kc", Currency::FromUnits(amount)},
                              {"Kurs", Currency::FromUnits(1)},
                              {"Mena", currency},
                              {"Uhrada", 1},
                              {"Datum", DateValue::FromCalendar(2005, 5, 1)}};
        fields.insert(fields.end(), more.begin(), more.end());
        return Add("Uhrady", fields);
    }
    int AddPayment(int dog, int amount) const { return AddPayment(dog, amount, koruna); }
    /// One field of the payment stored last, or how many there are when there is none.
    static std::string LastPayment(const std::string& field) {
        const Texts texts = Column("SELECT " + field + " FROM Uhrady ORDER BY ID DESC");
        return texts.empty() ? "no payment" : texts.front();
    }
    static size_t CountStored() { return Column("SELECT ID FROM Uhrady").size(); }

    template<class Window> static void Open(const std::function<void(QWidget&)>& inside) {
        Window window(nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
    static void Press(QWidget& window, const char* button) {
        Control<QPushButton>(window, button).click();
    }
    static ReportList& List(QWidget& window) { return Control<ReportList>(window, "lvwUhrady"); }
    /// The texts of a row, joined by a bar.
    static std::string Line(const ReportList& list, int position) {
        QStringList texts;
        for (int column = 0; column < list.ColumnCount(); ++column)
            texts << list.CellText(position, column);
        return texts.join(u'|').toStdString();
    }
    static Texts Lines(const ReportList& list) {
        Texts lines;
        for (int position = 0; position < list.RowCount(); ++position)
            lines.push_back(Line(list, position));
        return lines;
    }
    static std::string Headings(const ReportList& list) {
        QStringList texts;
        for (int column = 0; column < list.ColumnCount(); ++column)
            texts << list.model()->headerData(column, Qt::Horizontal).toString();
        return texts.join(u'|').toStdString();
    }
    static void RightClick(ReportList& list, int position) {
        const QPoint point = position < 0
                                 ? list.viewport()->rect().bottomLeft() + QPoint(5, -5)
                                 : list.visualRect(list.model()->index(position, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::RightButton, {}, point);
    }

    RecordingPlatform platform;
    int koruna = 0;
    int jana = 0;
    int petr = 0;
    int rex = 0;
    int alik = 0;
    int brok = 0;
};

} // namespace lorvo::test
