#include "office/papers/payment_report.h"

#include "app/common_routines.h"
#include "app/constant_tables.h"
#include "office/papers/document_typing.h"
#include "office/papers/row_filler.h"
#include "office/papers/run_progress.h"
#include "office/payments/payment_lookups.h"
#include "office/texts/dog_texts.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "store/uhrady.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QString DogOf(const PaymentRow& payment) {
    return FullName(payment);
}

QString DateOf(const PaymentRow& payment) {
    return DateOrEmpty(payment.Datum);
}

QString ModeOf(const PaymentRow& payment) {
    if (const QString* mode = FindPaymentMode(payment.Uhrada))
        return *mode;
    const QString dog = u"Platba za psa „"_s + payment.Jmeno;
    const QString found = payment.Uhrada ? u"“ má způsob úhrady %1, ale způsoby jsou jen 0 až %2."_s
                                               .arg(*payment.Uhrada)
                                               .arg(Tables().PaymentModes.size() - 1)
                                         : u"“ nemá uveden způsob úhrady."_s;
    throw RangeError((dog + found).toStdString());
}

/// A column of the report, alike on both routes.
struct PaymentColumn {
    const char16_t* heading;
    const char* placeholder;
    QString (*text)(const PaymentRow&);
};

constexpr PaymentColumn kColumns[] = {
    {u"Majitel", "_majitel_",
     [](const PaymentRow& payment) {
         return payment.MajX;
     }},
    {u"Pes", "_jmenopsa_", DogOf},
    {u"Datum", "_datum_", DateOf},
    {u"Částka", "_kc_",
     [](const PaymentRow& payment) {
         return AmountText(payment.Kc);
     }},
    {u"Uhrazeno", "_uhrada_", ModeOf},
    {u"Účet", "_ucet_",
     [](const PaymentRow& payment) {
         return payment.Ucet;
     }},
};

void SetUpPage(WordProcessor& word) {
    word.SetOrientation(PageOrientation::Portrait);
    for (const double position : {2.0, 4.0, 6.0, 8.0, 10.0, 12.0})
        word.AddTabStop(CentimetersToPoints(position));
    word.SetFontName(u"Arial"_s);
    word.SetFontSize(9);
}

void TypeHeading(WordProcessor& word) {
    word.SetBold(FontSwitch::On);
    word.SetKeepWithNext(true);
    for (const PaymentColumn& column : kColumns)
        word.TypeText(QString::fromUtf16(column.heading) + u'\t');
    word.SetBold(FontSwitch::Off);
    word.TypeParagraph();
    word.SetKeepWithNext(false);
}

void TypePayment(WordProcessor& word, const PaymentRow& payment) {
    for (const PaymentColumn& column : kColumns)
        word.TypeText(column.text(payment) + u'\t');
    word.TypeParagraph();
}

} // namespace

void AppendPayments(QByteArray& output, const QByteArray& pattern, RunProgress& progress) {
    std::vector<RowField<PaymentRow>> fields;
    for (const PaymentColumn& column : kColumns)
        fields.push_back(TextField<PaymentRow>(column.placeholder, column.text));
    RowFiller<PaymentRow> filler(pattern, std::move(fields));
    WalkRows(PaymentsWithOwners(), progress,
             [&](const PaymentRow& payment) { filler.AppendTo(output, payment); });
}

void TypePayments(WordProcessor& word, RunProgress& progress) {
    SetUpPage(word);
    TypeHeading(word);
    WalkRows(PaymentsWithOwners(), progress,
             [&](const PaymentRow& payment) { TypePayment(word, payment); });
    word.SetPrintView();
    word.HomeKeyStory();
}

} // namespace lorvo
