#include "reports/frmTiskKatalog.h"

#include "forms/controls.h"
#include "office/papers/catalogue.h"

#include <QVBoxLayout>

namespace lorvo {

namespace {

ExportTraits CatalogueTraits() {
    return {
        .name = "frmTiskKatalog",
        .caption = QStringLiteral("Tisk katalogu"),
        .title = QStringLiteral("Tisk katalogu"),
        .startCaption = QStringLiteral("Tisk"),
        .closeCaption = QStringLiteral("Storno"),
        .paper = QStringLiteral("Katalog"),
    };
}

} // namespace

frmTiskKatalog::frmTiskKatalog(QWidget* parent) : ExportWindow(CatalogueTraits(), parent) {
    auto* options = new QGroupBox(QStringLiteral("Volby"), this);
    chkEX = Named(new QCheckBox(QStringLiteral("Generovat povýstavní katalog"), options),
                  QStringLiteral("chkEX"));
    (new QVBoxLayout(options))->addWidget(chkEX, 0, Qt::AlignLeft);
    LayOut(options);
    chkHTML->setChecked(false);
    chkHTML->setEnabled(false);
}

void frmTiskKatalog::TypeDocument(WordProcessor& word) {
    TypeCatalogue(word, chkEX->isChecked());
}

} // namespace lorvo
