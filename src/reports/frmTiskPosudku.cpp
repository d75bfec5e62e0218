#include "reports/frmTiskPosudku.h"

#include "office/papers/judging_sheets.h"
#include "reports/text_line_boxes.h"

namespace lorvo {

namespace {

ExportTraits SheetTraits() {
    return {
        .name = "frmTiskPosudku",
        .caption = QStringLiteral("Export posudků"),
        .title = QStringLiteral("Export posudků"),
        .startCaption = QStringLiteral("Start"),
        .closeCaption = QStringLiteral("Zavřít"),
        .paper = QStringLiteral("Posudkové listy"),
        .templateFile = QStringLiteral("Šablony/Posudkové listy.html"),
        .outputFile = QStringLiteral("Šablony/Výstup.html"),
        .closesAfterTemplate = true,
    };
}

constexpr const char16_t* kLabels[] = {u"Nadpis",     u"Úvod",       u"Odstavec 1", u"Odstavec 2",
                                       u"Odstavec 3", u"Odstavec 4", u"Odstavec 5", u"Odstavec 6",
                                       u"Odstavec 7", u"Jméno",      u"Titul"};

} // namespace

frmTiskPosudku::frmTiskPosudku(QWidget* parent)
    : ExportWindow(SheetTraits(), parent), boxes_(new TextLineBoxes(this)) {
    const auto title =
        QStringLiteral("Krajská výstava psů společenských plemen Zlín 14. května 2005");
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
