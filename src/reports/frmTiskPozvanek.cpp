#include "reports/frmTiskPozvanek.h"

#include "office/papers/entry_confirmations.h"
#include "reports/text_line_boxes.h"

namespace lorvo {

namespace {

ExportTraits ConfirmationTraits() {
    return {
        .name = "frmTiskPozvanek",
        .caption = QStringLiteral("Export pozvánek"),
        .title = QStringLiteral("Export pozvánek"),
        .startCaption = QStringLiteral("Start"),
        .closeCaption = QStringLiteral("Zavřít"),
        .paper = QStringLiteral("Pozvánky"),
        .templateFile = QStringLiteral("Šablony/Pozvánky.html"),
        .outputFile = QStringLiteral("HTMLVýstup.html"),
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
