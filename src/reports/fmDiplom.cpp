#include "reports/fmDiplom.h"

#include "office/papers/diplomas.h"

#include <QLabel>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

ExportTraits DiplomaTraits() {
    return {
        .name = "fmDiplom",
        .caption = u"Tisk diplomů"_s,
        // kept: diplomas-named-catalogue
        .title = u"Export katalogu"_s,
        .startCaption = u"Tisk"_s,
        .closeCaption = u"Storno"_s,
        .paper = u"Diplomy"_s,
        .templateFile = u"Šablony/Diplomy.html"_s,
        .outputFile = u"Šablony/Výstup.html"_s,
        .closesAfterTemplate = true,
        .closesAfterDocument = true,
    };
}

} // namespace

fmDiplom::fmDiplom(QWidget* parent) : ExportWindow(DiplomaTraits(), parent) {
    auto* description = new QLabel(u"Vygeneruje seznam všech psů. Sestava je určena "
                                   "pro tisk na předtištěné diplomy."_s,
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
