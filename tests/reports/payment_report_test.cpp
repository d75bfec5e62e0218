#include "platform/values/cp1250.h"
#include "reports/frmTiskPlateb.h"
#include "reports/paper_fixture.h"
#include "store/data_module.h"
#include "store/query.h"
#include "store/uhrady.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

const QString kQuestion = u"Označit všechny vyexportované platby jako 'vytištěné'?"_s;

class PaymentReport : public PaperFixture {
  protected:
    PaymentReport() {
        WriteTemplate(u"Platby.html"_s,
                      "__top____top_end____body__<_majitel_;_jmenopsa_;_datum_;_kc_;_uhrada_;"
                      "_ucet_>__body_end____bottom____bottom_end__");
    }
    void ExpectQuestion(MessageAnswer answer) {
        platform.ExpectMessage(kQuestion, answer, MessageIcon::Question, MessageButtons::YesNo,
                               u"Export plateb"_s);
    }
    static bool IsPrinted(int paymentID) {
        Query row(TheDataModule().Conn1, "SELECT Printed FROM Uhrady WHERE ID = ?", {paymentID});
        return row.Next() && row.Bool(0);
    }
    static QList<bool> Marks() {
        QList<bool> marks;
        for (int ID = 1; ID <= 4; ++ID)
            marks << IsPrinted(ID);
        return marks;
    }
    const QList<bool> marksBefore{false, true, false, false};

    frmTiskPlateb window{nullptr};
};

} // namespace

TEST_F(PaymentReport, ListsThePaymentsByOwner) {
    Start(window, true);
    EXPECT_EQ(FromCp1250(Output()),
              u"<Novák Jan, Zlín;Rex z Dvora;31.3.2005;1 234,50 Kč;převodem;123456/0100>"
              "<Novák Jan, Zlín;Brok & syn z \"Údolí\" <x>;2.4.2005 14:30:15; 50,00 Kč;složenkou;>"
              "<Žižková Eva, Ústí nad Labem;Aša od Řeky;1.4.2005 9:05:00; 300,00 Kč;hotově;>");
    EXPECT_TRUE(window.isVisible());
    ExpectQuestion(MessageAnswer::No);
    Click(window, "cmdCancel");
}

TEST_F(PaymentReport, AWindowWithoutARunAsksNothing) {
    window.show();
    Click(window, "cmdCancel");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(Marks(), marksBefore);
}

// kept: yes-marks-every-payment
TEST_F(PaymentReport, YesMarksEveryPaymentListedOrNot) {
    Start(window, false);
    show.Execute("INSERT INTO Uhrady (ID, ID_Psa, Uhrada, Printed) VALUES (5, 1, 0, 0)");
    ExpectQuestion(MessageAnswer::Yes);
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(Marks(), QList<bool>({true, true, true, true}));
    EXPECT_TRUE(IsPrinted(5));
}

TEST_F(PaymentReport, NoChangesNothing) {
    Start(window, false);
    ExpectQuestion(MessageAnswer::No);
    Click(window, "cmdCancel");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(Marks(), marksBefore);
}

TEST_F(PaymentReport, AStoppedRunAsksAllTheSame) {
    StopAt(window, u"66%"_s);
    Start(window, true);
    EXPECT_EQ(Output().count('<'), 1);
    ExpectQuestion(MessageAnswer::No);
    window.close();
}

TEST_F(PaymentReport, AStopOfTheDocumentLeavesTheLinesDoneSoFar) {
    StopAt(window, u"66%"_s);
    Start(window, false);
    EXPECT_EQ(Text().count(u"¶"_s), 2);
    ExpectQuestion(MessageAnswer::No);
    window.close();
}

TEST_F(PaymentReport, ABrokenTemplateAsksAllTheSame) {
    WriteTemplate(u"Platby.html"_s, "__top__");
    platform.ExpectMessage(u"Šablona poškozena, položka nebyla nalezena."_s);
    Start(window, true);
    EXPECT_TRUE(window.isVisible());
    ExpectQuestion(MessageAnswer::Yes);
    window.close();
    EXPECT_EQ(Marks(), QList<bool>({true, true, true, true}));
}

TEST_F(PaymentReport, AnUnknownWayOfPaymentEndsTheRunAndNothingIsAsked) {
    for (const int mode : {-1, 3}) {
        show.Execute("UPDATE Uhrady SET Uhrada = " + std::to_string(mode) + " WHERE ID = 2");
        frmTiskPlateb other(nullptr);
        platform.ExpectMessage(
            u"Platba za psa „Rex“ má způsob úhrady %1, ale způsoby jsou jen 0 až 2."_s.arg(mode),
            MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok, u"Platby"_s);
        Start(other, mode < 0);
        EXPECT_EQ(platform.shownDocuments, 0);
        EXPECT_EQ(Output(), "no file");
        other.close();
        EXPECT_EQ(Marks(), marksBefore);
    }
}

TEST_F(PaymentReport, APaymentWithoutAWayOfPaymentEndsTheRun) {
    show.Execute("UPDATE Uhrady SET Uhrada = NULL WHERE ID = 2");
    for (const bool html : {true, false}) {
        frmTiskPlateb other(nullptr);
        platform.ExpectMessage(u"Platba za psa „Rex“ nemá uveden způsob úhrady."_s,
                               MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
                               u"Platby"_s);
        Start(other, html);
        EXPECT_EQ(platform.shownDocuments, 0);
        EXPECT_EQ(Output(), "no file");
        other.close();
        EXPECT_EQ(Marks(), marksBefore);
    }
}

} // namespace lorvo::test
