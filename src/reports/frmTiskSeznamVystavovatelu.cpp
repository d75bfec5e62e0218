#include "reports/frmTiskSeznamVystavovatelu.h"

#include "office/papers/exhibitor_list.h"
#include "reports/text_line_boxes.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

ExportTraits ExhibitorTraits() {
    return {
        .name = "frmTiskSeznamVystavovatelu",
        .caption = u"Export seznamu vystavovatelů"_s,
        .title = u"Export seznamu vystavovatelů"_s,
        .startCaption = u"Start"_s,
        .closeCaption = u"Zavřít"_s,
        .paper = u"Seznam vystavovatelů"_s,
        .templateFile = u"Šablony/Seznam vystavovatelů.html"_s,
        .outputFile = u"Šablony/Výstup.html"_s,
        .closesAfterTemplate = true,
    };
}

} // namespace

// The list prints none of the boxes.
frmTiskSeznamVystavovatelu::frmTiskSeznamVystavovatelu(QWidget* parent)
    : ExportWindow(ExhibitorTraits(), parent) {
    auto* boxes = new TextLineBoxes(this);
    boxes->Add(u"Nadpis"_s, u"Krajská výstava psů společenských plemen Zlín 14. května 2005"_s);
    boxes->Add(u"Úvod"_s);
    boxes->Add(u"Odstavec 1"_s);
    LayOut(NoOptions(boxes));
}

void frmTiskSeznamVystavovatelu::TypeDocument(WordProcessor& word) {
    TypeExhibitors(word);
}

void frmTiskSeznamVystavovatelu::AppendRows(QByteArray& output, const ReportTemplate& pattern) {
    AppendExhibitors(output, pattern.Body(), *this);
}

} // namespace lorvo
