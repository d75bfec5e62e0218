#include "reports/fmDiplom.h"

#include "office/papers/diplomas.h"

#include <QLabel>

namespace lorvo {

namespace {

ExportTraits DiplomaTraits() {
    return {
        .name = "fmDiplom",
        .caption = QStringLiteral("Tisk diplomů"),
        .title = QStringLiteral("Export katalogu"),
        .startCaption = QStringLiteral("Tisk"),
        .closeCaption = QStringLiteral("Storno"),
        .paper = QStringLiteral("Diplomy"),
        .templateFile = QStringLiteral("Šablony/Diplomy.html"),
        .outputFile = QStringLiteral("Šablony/Výstup.html"),
        .closesAfterTemplate = true,
        .closesAfterDocument = true,
    };
}

} // namespace

fmDiplom::fmDiplom(QWidget* parent) : ExportWindow(DiplomaTraits(), parent) {
    auto* description = new QLabel(QStringLiteral("Vygeneruje seznam všech psů. Sestava je určena "
                                                  "pro tisk na předtištěné diplomy."),
                                   this);
    description->setWordWrap(true);
    LayOut(NoOptions(description));
}

void fmDiplom::TypeDocument(WordProcessor& word) {
    TypeDiplomas(word, *this);
}

void fmDiplom::AppendRows(QByteArray& output, const ReportTemplate& pattern) {
    AppendDiplomas(output, pattern.Body(), *this);
}

} // namespace lorvo
