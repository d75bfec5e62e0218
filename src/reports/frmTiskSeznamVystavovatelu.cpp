#include "reports/frmTiskSeznamVystavovatelu.h"

#include "office/papers/exhibitor_list.h"
#include "reports/text_line_boxes.h"

namespace lorvo {

namespace {

ExportTraits ExhibitorTraits() {
    return {
        .name = "frmTiskSeznamVystavovatelu",
        .caption = QStringLiteral("Export seznamu vystavovatelů"),
        .title = QStringLiteral("Export seznamu vystavovatelů"),
        .startCaption = QStringLiteral("Start"),
        .closeCaption = QStringLiteral("Zavřít"),
        .paper = QStringLiteral("Seznam vystavovatelů"),
        .templateFile = QStringLiteral("Šablony/Seznam vystavovatelů.html"),
        .outputFile = QStringLiteral("Šablony/Výstup.html"),
        .closesAfterTemplate = true,
    };
}

} // namespace

// The list prints none of the boxes.
frmTiskSeznamVystavovatelu::frmTiskSeznamVystavovatelu(QWidget* parent)
    : ExportWindow(ExhibitorTraits(), parent) {
    auto* boxes = new TextLineBoxes(this);
    boxes->Add(QStringLiteral("Nadpis"),
               QStringLiteral("Krajská výstava psů společenských plemen Zlín 14. května 2005"));
    boxes->Add(QStringLiteral("Úvod"));
    boxes->Add(QStringLiteral("Odstavec 1"));
    LayOut(NoOptions(boxes));
}

void frmTiskSeznamVystavovatelu::TypeDocument(WordProcessor& word) {
    TypeExhibitors(word);
}

void frmTiskSeznamVystavovatelu::AppendRows(QByteArray& output, const ReportTemplate& pattern) {
    AppendExhibitors(output, pattern.Body(), *this);
}

} // namespace lorvo
