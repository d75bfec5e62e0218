// A morning at the desk: payments of three currencies are taken and some deleted again, a rate
// changes in between, and every window tells the same sums as a reckoning of the test's own.

#include "app/module_values.h"
#include "forms/report_list.h"
#include "mainwindow/fm_main.h"
#include "mainwindow/window_opener.h"
#include "payments/frmEditCurrency.h"
#include "store/routines_fixture.h"
#include "store/vystavy.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <map>
#include <random>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// Hundredths of the main currency; the test's own money.
using Hundredths = std::int64_t;

/// "1 234,50 Kč", with the blank before the last three whole digits kept below 1000.
std::string Amount(Hundredths amount) {
    const Hundredths size = amount < 0 ? -amount : amount;
    char text[64];
    if (size >= 100'000)
        std::snprintf(
            text, sizeof text, "%lld %03lld,%02lld Kč", static_cast<long long>(size / 100'000),
            static_cast<long long>(size / 100 % 1000), static_cast<long long>(size % 100));
    else
        std::snprintf(text, sizeof text, " %lld,%02lld Kč", static_cast<long long>(size / 100),
                      static_cast<long long>(size % 100));
    return (amount < 0 ? "-" : "") + std::string(text);
}

class DeskMorning : public RoutinesTest {
  protected:
    static constexpr int kOwners = 5;
    static constexpr int kDogs = 11;
    static constexpr int kPayments = 40;
    static constexpr Hundredths kFee = 45'050;

    DeskMorning() {
        Module() = ModuleValues();
        platform_.now = DateValue::FromCalendar(2005, 5, 14).WithSecondOfDay(8 * 3600);
        EnterDogs();
        window_ = std::make_unique<fm_main>();
        window_->Start();
        QCoreApplication::processEvents();
    }
    ~DeskMorning() override {
        window_.reset();
        Module() = ModuleValues();
    }

    void EnterDogs() {
        const int show = Add("Vystavy", {{"Nazev", Text("Hlavní výstava")},
                                         {"PoplatkyIIClass5D2", Currency::FromRaw(kFee * 100)}});
        const int breed = Add("Plemena", {{"Nazev", Text("Pudl")}, {"Pouzivat", true}});
        for (int i = 1; i <= kOwners; ++i)
            Add("Majitele", {{"Jmeno", Text("Majitel %1").arg(i)}});
        for (int i = 1; i <= kDogs; ++i) {
            const int dog = Add("Psi", {{"Jmeno", Text("Pes %1").arg(i)},
                                        {"PlemenoID", breed},
                                        {"MajitelID", 1 + i % kOwners},
                                        {"Trida", 5}});
            AddLink("PsiVeVystavach", {{"PesID", dog}, {"VystavaID", show}});
        }
    }

    /// Opens the editor on a currency, 0 for a new one, and stores these texts.
    static void EditCurrency(int ID, const char* name, const char* abbreviation, const char* rate) {
        frmEditCurrency editor(
            ID, [](bool) {}, nullptr);
        WhileOpen([&] { OpenModal(editor); },
                  [&](QWidget& window) {
                      const char* const texts[] = {name, abbreviation, rate};
                      for (int i = 0; i < 3; ++i)
                          window.findChild<QLineEdit*>(u"txtEditCurr(%1)"_s.arg(i))
                              ->setText(Text(texts[i]));
                      Control<QPushButton>(window, "cmdOK").click();
                  });
    }

    void Select(int dog) {
        const QString node = u"P%1"_s.arg(dog);
        window_->SelectNode(node);
        window_->ShowNodeInfo(node);
    }
    void ClickLink(const char* name) {
        QTest::mouseClick(&Control<QLabel>(*window_, name), Qt::LeftButton);
    }
    std::string Line(const char* caption) const {
        for (const QLabel* label : window_->findChildren<QLabel*>())
            if (label->accessibleName() == Text(caption) && label->isVisible())
                return label->text().toStdString();
        return std::string("no line ") + caption;
    }

    /// Takes a payment on the selected dog as a clerk does: by keyboard, Enter at the end.
    void Take(int units, const char* currency) {
        WhileOpen([this] { ClickLink("lblNovaPlatba"); },
                  [&](QWidget& window) {
                      auto& currencies = Control<QComboBox>(window, "cmbMena");
                      currencies.setCurrentText(Text(currency));
                      ASSERT_EQ(currencies.currentText(), Text(currency));
                      auto& amount = Control<QLineEdit>(window, "txtCastka");
                      amount.selectAll();
                      QTest::keyClicks(&amount, QString::number(units));
                      QTest::keyClick(&amount, Qt::Key_Return);
                      EXPECT_FALSE(window.isVisible());
                  });
    }
    /// Deletes the first payment on the selected dog's statement; returns what it came to.
    Hundredths DeleteFirst() {
        Hundredths deleted = 0;
        WhileOpen([this] { ClickLink("lblSeznamPlateb"); },
                  [&](QWidget& window) {
                      auto& list = Control<ReportList>(window, "lvwUhrady");
                      list.SelectRow(0);
                      deleted = taken_.at(list.Row(0).tag.toInt());
                      platform_.ExpectMessage(Text("Skutečně smazat platbu?"));
                      QTest::keyClick(&list, Qt::Key_Delete);
                  });
        return deleted;
    }
    static int NewestPayment() {
        return std::stoi(Column("SELECT ID FROM Uhrady ORDER BY ID DESC").front());
    }

    /// The rates are whole hundredths, so that the reckoning needs no rounding.
    struct Paying {
        const char* currency;
        Hundredths rate;
    };
    Paying currencies_[3] = {{"Koruna (Kč)", 100}, {"Euro (EUR)", 2'550}, {"Zlotý (PLN)", 623}};

    RecordingPlatform platform_;
    std::unique_ptr<fm_main> window_;
    std::map<int, Hundredths> taken_; ///< by the payment's ID
    std::map<int, Hundredths> paid_;  ///< by the dog's ID
};

TEST_F(DeskMorning, EveryWindowTellsTheSameSums) {
    EditCurrency(0, "Koruna", "Kč", "1");
    EditCurrency(0, "Euro", "EUR", "25,5");
    EditCurrency(0, "Zlotý", "PLN", "6,23");
    std::mt19937 random(14'05'2005);
    for (int i = 0; i < kPayments; ++i) {
        if (i == kPayments / 2) {
            EditCurrency(2, "Euro", "EUR", "26,07");
            currencies_[1].rate = 2'607;
        }
        const int dog = 1 + static_cast<int>(random() % kDogs);
        const int units = 1 + static_cast<int>(random() % 900);
        const Paying& paying = currencies_[random() % 3];
        Select(dog);
        Take(units, paying.currency);
        taken_[NewestPayment()] = units * paying.rate;
        paid_[dog] += units * paying.rate;
        EXPECT_EQ(Line("Uhrazeno:"), Amount(paid_[dog]));
    }
    for (const auto& dog : {paid_.begin()->first, paid_.rbegin()->first}) {
        Select(dog);
        paid_[dog] -= DeleteFirst();
    }
    ASSERT_EQ(Column("SELECT ID FROM Uhrady").size(), static_cast<size_t>(kPayments - 2));

    std::map<int, Hundredths> paidByOwner;
    std::map<int, Hundredths> feesByOwner;
    Hundredths paidByAll = 0;
    for (int dog = 1; dog <= kDogs; ++dog) {
        Select(dog);
        EXPECT_EQ(Line("Uhrazeno:"), Amount(paid_[dog])) << dog;
        EXPECT_EQ(Line("Rozdíl:"), Amount(paid_[dog] - kFee)) << dog;
        paidByOwner[1 + dog % kOwners] += paid_[dog];
        feesByOwner[1 + dog % kOwners] += kFee;
        paidByAll += paid_[dog];
    }
    WhileOpen([] { Open(u"frmVystavovatele"_s); },
              [&](QWidget& window) {
                  const auto& list = Control<ReportList>(window, "lvwList");
                  for (int owner = 1; owner <= kOwners; ++owner) {
                      const int row = list.FindRow(u"M%1"_s.arg(owner));
                      const auto cell = [&](int column) {
                          return list.CellText(row, column).toStdString();
                      };
                      EXPECT_EQ(cell(8), Amount(feesByOwner[owner]));
                      EXPECT_EQ(cell(9), Amount(paidByOwner[owner]));
                      EXPECT_EQ(cell(10), Amount(paidByOwner[owner] - feesByOwner[owner]));
                  }
                  const Hundredths balance = paidByAll - kDogs * kFee;
                  EXPECT_EQ(Control<QLabel>(window, "sb(2)").text().toStdString(),
                            "Poplatky celkem: " + Amount(kDogs * kFee) +
                                ", uhrazeno celkem: " + Amount(paidByAll) +
                                ", bilance: " + (balance > 0 ? "+" : "") + Amount(balance));
              });
    WhileOpen([] { Open(u"frmPrehledPlateb"_s); },
              [](QWidget& window) {
                  EXPECT_EQ(Control<ReportList>(window, "lvwUhrady").RowCount(), kPayments - 2);
              });
}

} // namespace

} // namespace lorvo::test
