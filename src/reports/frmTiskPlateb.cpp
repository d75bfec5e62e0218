#include "reports/frmTiskPlateb.h"

#include "forms/messages.h"
#include "office/papers/payment_report.h"
#include "store/uhrady.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

ExportTraits PaymentTraits() {
    return {
        .name = "frmTiskPlateb",
        .caption = u"Platby"_s,
        .title = u"Export plateb"_s,
        .startCaption = u"Tisk"_s,
        .closeCaption = u"Storno"_s,
        .paper = u"Platby"_s,
        .templateFile = u"Šablony/Platby.html"_s,
        .outputFile = u"Šablony/Výstup.html"_s,
    };
}

} // namespace

frmTiskPlateb::frmTiskPlateb(QWidget* parent) : ExportWindow(PaymentTraits(), parent) {
    LayOut(NoOptions());
}

void frmTiskPlateb::TypeDocument(WordProcessor& word) {
    TypePayments(word, *this);
}

void frmTiskPlateb::AppendRows(QByteArray& output, const ReportTemplate& pattern) {
    AppendPayments(output, pattern.Body(), *this);
}

void frmTiskPlateb::Finished() {
    Exported = true;
}

// kept: yes-marks-every-payment
// The mark goes on every payment, listed or not.
bool frmTiskPlateb::QueryUnload() {
    if (!ExportWindow::QueryUnload())
        return false;
    if (Exported && Ask(*this, u"Označit všechny vyexportované platby jako 'vytištěné'?"_s,
                        MessageButtons::YesNo) == MessageAnswer::Yes)
        MarkAllPaymentsPrinted();
    return true;
}

} // namespace lorvo
