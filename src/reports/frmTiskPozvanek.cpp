#include "reports/frmTiskPozvanek.h"

#include "office/papers/entry_confirmations.h"
#include "reports/text_line_boxes.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

ExportTraits ConfirmationTraits() {
    return {
        .name = "frmTiskPozvanek",
        .caption = u"Export pozvánek"_s,
        .title = u"Export pozvánek"_s,
        .startCaption = u"Start"_s,
        .closeCaption = u"Zavřít"_s,
        .paper = u"Pozvánky"_s,
        .templateFile = u"Šablony/Pozvánky.html"_s,
        .outputFile = u"HTMLVýstup.html"_s,
        .closesAfterTemplate = true,
        .closesAfterDocument = true,
        .templateDisablesClosing = false,
        .stopEnablesClosing = false,
    };
}

} // namespace

frmTiskPozvanek::frmTiskPozvanek(QWidget* parent)
    : ExportWindow(ConfirmationTraits(), parent), boxes_(new TextLineBoxes(this)) {
    for (const ConfirmationLine& line : kConfirmationLines)
        boxes_->Add(QString::fromUtf16(line.label), QString::fromUtf16(line.text));
    TextLines = boxes_->Texts();
    LayOut(boxes_);
}

void frmTiskPozvanek::TypeDocument(WordProcessor& word) {
    TextLines = boxes_->Texts();
    TypeConfirmations(word, TextLines, *this);
}

// What was typed into the boxes goes to the document alone.
void frmTiskPozvanek::AppendRows(QByteArray& output, const ReportTemplate& pattern) {
    AppendConfirmations(output, pattern.Body(), TextLines, *this);
}

} // namespace lorvo
