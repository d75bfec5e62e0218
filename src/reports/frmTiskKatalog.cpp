#include "reports/frmTiskKatalog.h"

#include "forms/controls.h"
#include "office/papers/catalogue.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

ExportTraits CatalogueTraits() {
    return {
        .name = "frmTiskKatalog",
        .caption = u"Tisk katalogu"_s,
        .title = u"Tisk katalogu"_s,
        .startCaption = u"Tisk"_s,
        .closeCaption = u"Storno"_s,
        .paper = u"Katalog"_s,
    };
}

} // namespace

frmTiskKatalog::frmTiskKatalog(QWidget* parent) : ExportWindow(CatalogueTraits(), parent) {
    auto* options = new QGroupBox(u"Volby"_s, this);
    chkEX = Named(new QCheckBox(u"Generovat povýstavní katalog"_s, options), u"chkEX"_s);
    (new QVBoxLayout(options))->addWidget(chkEX, 0, Qt::AlignLeft);
    LayOut(options);
    chkHTML->setChecked(false);
    chkHTML->setEnabled(false);
}

void frmTiskKatalog::TypeDocument(WordProcessor& word) {
    TypeCatalogue(word, chkEX->isChecked());
}

} // namespace lorvo
