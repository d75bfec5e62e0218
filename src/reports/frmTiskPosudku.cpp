#include "reports/frmTiskPosudku.h"

#include "office/papers/judging_sheets.h"
#include "reports/text_line_boxes.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

ExportTraits SheetTraits() {
    return {
        .name = "frmTiskPosudku",
        .caption = u"Export posudků"_s,
        .title = u"Export posudků"_s,
        .startCaption = u"Start"_s,
        .closeCaption = u"Zavřít"_s,
        .paper = u"Posudkové listy"_s,
        .templateFile = u"Šablony/Posudkové listy.html"_s,
        .outputFile = u"Šablony/Výstup.html"_s,
        .closesAfterTemplate = true,
    };
}

constexpr const char16_t* kLabels[] = {u"Nadpis",     u"Úvod",       u"Odstavec 1", u"Odstavec 2",
                                       u"Odstavec 3", u"Odstavec 4", u"Odstavec 5", u"Odstavec 6",
                                       u"Odstavec 7", u"Jméno",      u"Titul"};

} // namespace

frmTiskPosudku::frmTiskPosudku(QWidget* parent)
    : ExportWindow(SheetTraits(), parent), boxes_(new TextLineBoxes(this)) {
    const auto title = u"Krajská výstava psů společenských plemen Zlín 14. května 2005"_s;
    for (const char16_t* label : kLabels)
        boxes_->Add(QString::fromUtf16(label), label == kLabels[0] ? title : QString());
    LayOut(boxes_);
}

/// The one text that the sheets print.
QString frmTiskPosudku::Title() const {
    return boxes_->Text(0);
}

void frmTiskPosudku::TypeDocument(WordProcessor& word) {
    TypeJudgingSheets(word, Title(), *this);
}

void frmTiskPosudku::AppendRows(QByteArray& output, const ReportTemplate& pattern) {
    AppendJudgingSheets(output, pattern.Body(), Title(), *this);
}

} // namespace lorvo
