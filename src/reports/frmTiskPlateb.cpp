#include "reports/frmTiskPlateb.h"

#include "office/papers/payment_report.h"
#include "platform/platform.h"
#include "store/uhrady.h"

namespace lorvo {

namespace {

ExportTraits PaymentTraits() {
    return {
        .name = "frmTiskPlateb",
        .caption = QStringLiteral("Platby"),
        .title = QStringLiteral("Export plateb"),
        .startCaption = QStringLiteral("Tisk"),
        .closeCaption = QStringLiteral("Storno"),
        .paper = QStringLiteral("Platby"),
        .templateFile = QStringLiteral("Šablony/Platby.html"),
        .outputFile = QStringLiteral("Šablony/Výstup.html"),
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

// The mark goes on every payment, listed or not.
bool frmTiskPlateb::QueryUnload() {
    if (!ExportWindow::QueryUnload())
        return false;
    if (Exported &&
        ThePlatform().messages->Show(
            QStringLiteral("Označit všechny vyexportované platby jako 'vytištěné'?"),
            MessageIcon::Question, MessageButtons::YesNo, windowTitle()) == MessageAnswer::Yes)
        MarkAllPaymentsPrinted();
    return true;
}

} // namespace lorvo
